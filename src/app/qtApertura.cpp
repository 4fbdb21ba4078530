#include "app/qtApertura.h"

#include <QApplication>
#include <QDropEvent>
#include <QUrl>

namespace parvik {
namespace {

/// The one file that is dragged; "" for none, for several, and for what is no file of this system.
QString FileTrascinato(const QMimeData& dati) {
  const QList<QUrl> indirizzi = dati.urls();
  return indirizzi.size() == 1 ? indirizzi.first().toLocalFile() : QString();
}

bool PortaFile(const QMimeData& dati) {
  const QList<QUrl> indirizzi = dati.urls();
  return std::any_of(indirizzi.begin(), indirizzi.end(), [](const QUrl& url) { return url.isLocalFile(); });
}

}  // namespace

void qtApertura::Osserva(QWidget& bersaglio) {
  bersaglio.setAcceptDrops(true);
  bersaglio.installEventFilter(this);
}

/// Files never reach a section as text, not even those that cannot be opened here.
bool qtApertura::eventFilter(QObject* oggetto, QEvent* evento) {
  const bool trascina = evento->type() == QEvent::DragEnter || evento->type() == QEvent::DragMove;
  if (!trascina && evento->type() != QEvent::Drop) return QObject::eventFilter(oggetto, evento);
  auto& deposito = static_cast<QDropEvent&>(*evento);
  if (!PortaFile(*deposito.mimeData())) return QObject::eventFilter(oggetto, evento);
  const QString file = FileTrascinato(*deposito.mimeData());
  const bool preso = !file.isEmpty() && QApplication::activeModalWidget() == nullptr;
  deposito.setDropAction(preso ? Qt::CopyAction : Qt::IgnoreAction);
  deposito.setAccepted(preso);
  if (preso && !trascina) {
    QMetaObject::invokeMethod(
        this, [this, file] { emit Depositato(file); }, Qt::QueuedConnection);
  }
  return true;
}

}  // namespace parvik

#include "app/qtGuida.h"

#include <QApplication>
#include <QChildEvent>
#include <QDir>
#include <QScreen>
#include <QShortcut>
#include <algorithm>
#include <utility>

#include "app/frmGuida.h"
#include "app/qtPagineGuida.h"
#include "start/CartelleProgramma.h"

namespace parvik {
namespace {

constexpr int MinimaLarghezza = 540;  // pixels, of a guide that can be read

/// Beside a dialog, as far as the screen has room there: what one reads about is to be seen.
void Accosta(QWidget& guida, const QWidget& dialogo) {
  const QRect schermo = dialogo.screen()->availableGeometry();
  const QRect cornice = dialogo.frameGeometry();
  const int aDestra = schermo.right() - cornice.right();
  const int aSinistra = cornice.left() - schermo.left();
  const int posto = std::max({aDestra, aSinistra, MinimaLarghezza});
  guida.resize(std::min(guida.width(), posto), guida.height());
  const int destra = std::min(cornice.right() + 1, schermo.right() + 1 - guida.width());
  const int sinistra = std::max(cornice.left() - guida.width(), schermo.left());
  const int sotto = std::max(schermo.bottom() + 1 - guida.height(), schermo.top());
  guida.move(aDestra >= aSinistra ? destra : sinistra, std::min(cornice.top(), sotto));
}

}  // namespace

qtGuida::qtGuida(std::filesystem::path dirProgramma, const qtMenu& menu, QWidget& finestra)
    : QObject(&finestra), dirProgramma_(std::move(dirProgramma)), menu_(menu), finestra_(finestra) {
  finestra.installEventFilter(this);
}

void qtGuida::Apri() {
  QWidget* const fuoco = QApplication::focusWidget();
  QWidget* const modale = QApplication::activeModalWidget();
  QWidget* const davanti = modale != nullptr ? modale : &finestra_;
  if (guida_ != nullptr && guida_->parentWidget() != davanti) delete guida_;
  if (guida_ == nullptr) {
    const QDir manuale(QString::fromStdString(DirManuale(dirProgramma_).string()));
    guida_ = new frmGuida(manuale, menu_, davanti);
    if (modale != nullptr) Accosta(*guida_, *modale);
  }
  guida_->Apri(PaginaPer(fuoco != nullptr ? fuoco : davanti));
}

/// The menu's key does not reach the dialogs. Each that is first shown, on the main window or on one of them,
/// gets one of its own; the key goes the way of all keys, and is none before the dialog can be seen.
bool qtGuida::eventFilter(QObject* oggetto, QEvent* evento) {
  if (evento->type() != QEvent::ChildPolished) return QObject::eventFilter(oggetto, evento);
  auto* dialogo = qobject_cast<QDialog*>(static_cast<QChildEvent*>(evento)->child());
  if (dialogo == nullptr) return false;
  dialogo->installEventFilter(this);
  auto* tasto = new QShortcut(QKeySequence(Qt::Key_F1), dialogo);
  tasto->setAutoRepeat(false);
  connect(tasto, &QShortcut::activated, this, &qtGuida::Apri);
  return false;
}

}  // namespace parvik

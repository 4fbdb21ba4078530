#include "app/txtGuida.h"

#include <QStyle>
#include <QUrl>
#include <QtMath>

#include "app/qtPagineGuida.h"

namespace parvik {
namespace {

constexpr const char* PostoDeiTasti = "<!-- tasti -->";
constexpr const char* Fine = ".html";

}  // namespace

txtGuida::txtGuida(const QDir& manuale, const qtMenu& menu) : manuale_(manuale), menu_(menu) {
  setObjectName("txtGuida");
  setAccessibleName("Guida");
  setOpenExternalLinks(false);
}

void txtGuida::Apri(const QString& pagina) {
  if (manuale_.exists(PaginaIndice + QString(Fine)))
    return setSource(QUrl::fromLocalFile(manuale_.filePath(pagina + Fine)));
  if (document()->isEmpty()) setHtml(TestoSenzaManuale(menu_));
  scrollToAnchor(AncoraDi(pagina));
}

void txtGuida::Cerca(const QString& testo) {
  if (testo.isEmpty() || find(testo)) return;
  const QTextCursor qui = textCursor();
  moveCursor(QTextCursor::Start);
  if (!find(testo)) setTextCursor(qui);
}

/// The keys are those that the program has now, and pictures are no wider than the window. What is no file of
/// the manual is nothing.
QVariant txtGuida::loadResource(int genere, const QUrl& nome) {
  if (!nome.isLocalFile() && !nome.isRelative()) return {};
  QVariant letto = QTextBrowser::loadResource(genere, nome);
  if (genere == QTextDocument::ImageResource) return InLarghezza(letto.toByteArray());
  if (genere != QTextDocument::HtmlResource || nome.fileName() != PaginaTasti + QString(Fine)) return letto;
  return QString::fromUtf8(letto.toByteArray()).replace(PostoDeiTasti, TabellaTasti(menu_));
}

/// There is room for the scroll bar, which comes and goes with the page.
QImage txtGuida::InLarghezza(const QByteArray& immagine) const {
  QImage piena = QImage::fromData(immagine);
  const int barra = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
  const int posto = width() - 2 * frameWidth() - barra - 2 * qCeil(document()->documentMargin());
  if (piena.width() <= posto || posto <= 0) return piena;
  return piena.convertToFormat(QImage::Format_RGB32).scaledToWidth(posto, Qt::SmoothTransformation);
}

}  // namespace parvik

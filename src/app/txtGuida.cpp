#include "app/txtGuida.h"

#include <QUrl>

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

/// The keys are those that the program has now. What is no file of the manual is nothing.
QVariant txtGuida::loadResource(int genere, const QUrl& nome) {
  if (!nome.isLocalFile() && !nome.isRelative()) return {};
  QVariant letto = QTextBrowser::loadResource(genere, nome);
  if (genere != QTextDocument::HtmlResource || nome.fileName() != PaginaTasti + QString(Fine)) return letto;
  return QString::fromUtf8(letto.toByteArray()).replace(PostoDeiTasti, TabellaTasti(menu_));
}

}  // namespace parvik

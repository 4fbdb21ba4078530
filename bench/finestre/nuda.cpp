// The floor of the editor's start: a window of the same toolkit with the same widgets in it, and nothing
// else.
#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <array>

namespace {

constexpr int Sezioni = 3;
constexpr int Etichette = 4;
constexpr QSize Dimensione(1100, 700);
/// How many entries the editor's menus have.
constexpr std::array VociDeiMenu = {12, 1, 8, 2, 0};

void RiempiBarra(QMenuBar& barra) {
  for (const int voci : VociDeiMenu) {
    QMenu* menu = barra.addMenu("&Menu");
    for (int i = 0; i < voci; ++i) menu->addAction("Voce")->setShortcut(QKeySequence("Ctrl+N"));
  }
}

/// Hidden, as they are in the editor until a type is chosen.
void Riempi(QWidget* area) {
  for (int i = 0; i < Sezioni; ++i) (new QPlainTextEdit(area))->hide();
  for (int i = 0; i < Etichette; ++i) (new QLabel("Etichetta", area))->hide();
  (new QPlainTextEdit(area))->hide();
}

}  // namespace

int main(int argc, char** argv) {
  QApplication programma(argc, argv);
  QMainWindow finestra;
  auto* area = new QWidget(&finestra);
  finestra.setCentralWidget(area);
  RiempiBarra(*finestra.menuBar());
  Riempi(area);
  finestra.resize(Dimensione);
  finestra.show();
  return QApplication::exec();
}

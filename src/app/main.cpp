#include <QApplication>
#include <QIcon>
#include <QTimer>
#include <chrono>
#include <cstdlib>
#include <iostream>
#include <string_view>

#include "app/Avvio.h"
#include "app/Versione.h"
#include "app/frmParvik.h"
#include "app/frmSegnali.h"
#include "common/Processo.h"
#include "common/SegnaliFine.h"
#include "common/frmDialoghi.h"
#include "common/frmItaliano.h"

namespace {

/// Decoding the icon would hold up the window's first frame.
constexpr auto AttesaIcona = std::chrono::milliseconds(200);

constexpr const char* Aiuto =
    "Uso: parvik32\n"
    "Ordavia, l'editor dei modelli di stampa di Velkor.\n\n"
    "  --help      mostra questo aiuto ed esce\n"
    "  --version   mostra la versione ed esce\n";

/// Answers what needs no display, before the toolkit looks for one. True when there is nothing else to do.
bool RispostoSenzaFinestra(int argc, char** argv) {
  for (int i = 1; i < argc; ++i) {
    const std::string_view argomento = argv[i];
    if (argomento == "--version" || argomento == "-v") {
      std::cout << "Ordavia (parvik32) Version " << parvik::VersioneVisibile << '\n';
      return true;
    }
    if (argomento == "--help" || argomento == "-h") {
      std::cout << Aiuto;
      return true;
    }
  }
  return false;
}

}  // namespace

int main(int argc, char** argv) {
  parvik::PreparaProcesso();
  if (RispostoSenzaFinestra(argc, argv)) return EXIT_SUCCESS;
  parvik::PreparaLocale();
  const parvik::SegnaliFine segnali;  // before the toolkit's threads
  QApplication programma(argc, argv);
  QApplication::setApplicationName("parvik32");
  if (!parvik::ParlaItaliano(programma))
    std::cerr << "parvik32: manca la traduzione italiana di Qt (qtbase_it)\n";
  parvik::frmDialoghi dialoghi;
  auto dati = parvik::Avvia(parvik::AmbienteDelProcesso(argv[0]), dialoghi);
  if (!dati) return EXIT_FAILURE;
  parvik::frmParvik finestra(std::move(*dati), dialoghi);
  dialoghi.ImpostaPadre(&finestra);
  const parvik::frmSegnali fineSessione(segnali, [&finestra] {
    if (!finestra.close()) return false;
    QApplication::exit();  // a dialog may still be open in front of the closed window
    return true;
  });
  finestra.show();
  QTimer::singleShot(AttesaIcona, &programma, [] { QApplication::setWindowIcon(QIcon(":/ordavia.png")); });
  return QApplication::exec();
}

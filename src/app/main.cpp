#include <QApplication>
#include <QIcon>
#include <QTimer>
#include <chrono>
#include <cstdlib>
#include <iostream>
#include <optional>
#include <string_view>

#include "app/Avvio.h"
#include "app/Versione.h"
#include "app/frmAvvio.h"
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

/// The start-up sequence; a signal ends it as any other reason not to go on.
std::optional<parvik::DatiAvvio> AvviaConSegnali(const char* argv0, const parvik::SegnaliFine& segnali,
                                                 parvik::Interlocutore& interlocutore) {
  bool finita = false;
  const parvik::frmSegnali fine(segnali, EXIT_FAILURE, [&finita] { return finita = true; });
  auto dati = parvik::Avvia(parvik::AmbienteDelProcesso(argv0), interlocutore);
  return finita ? std::nullopt : std::move(dati);
}

}  // namespace

int main(int argc, char** argv) {
  parvik::PreparaProcesso();
  if (RispostoSenzaFinestra(argc, argv)) return EXIT_SUCCESS;
  parvik::PreparaLocale();
  const parvik::SegnaliFine segnali;  // before the toolkit's threads
  const auto programma = parvik::ApriSchermo(argc, argv, segnali);
  QApplication::setApplicationName("parvik32");
  if (!parvik::ParlaItaliano(*programma))
    std::cerr << "parvik32: manca la traduzione italiana di Qt (qtbase_it)\n";
  parvik::frmDialoghi dialoghi;
  auto dati = AvviaConSegnali(argv[0], segnali, dialoghi);
  if (!dati) return EXIT_FAILURE;
  parvik::frmParvik finestra(std::move(*dati), dialoghi);
  dialoghi.ImpostaPadre(&finestra);
  const parvik::frmSegnali fineSessione(segnali, EXIT_SUCCESS,
                                        [&finestra] { return finestra.PuoChiudere(); });
  finestra.show();
  QTimer::singleShot(AttesaIcona, programma.get(),
                     [] { QApplication::setWindowIcon(QIcon(":/ordavia.png")); });
  return QApplication::exec();
}

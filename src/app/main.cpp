#include <QApplication>
#include <QIcon>
#include <QTimer>
#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <optional>
#include <string>

#include "app/frmParvik.h"
#include "app/qtAvvio.h"
#include "app/qtSegnali.h"
#include "catalogue/TrovaTipo.h"
#include "common/TestoMostrabile.h"
#include "common/qtDialoghi.h"
#include "common/qtItaliano.h"
#include "editor/Argomenti.h"
#include "editor/CopiaEsempio.h"
#include "sistema/Locale.h"
#include "sistema/Processo.h"
#include "sistema/SegnaliFine.h"
#include "start/Avvio.h"
#include "start/CartelleProgramma.h"
#include "start/Versione.h"

namespace {

/// Decoding the icon would hold up the window's first frame.
constexpr auto AttesaIcona = std::chrono::milliseconds(200);

constexpr int RigaDiComandoNonValida = 2;

/// What a person at a terminal reads of a mistake: one line.
int Rifiuta(const std::string& che, int stato) {
  std::cerr << "parvik32: " << parvik::Mostrabile(che) << '\n';
  return stato;
}

/// Answers what needs no display, before the toolkit looks for one: the status to end with, if it was all.
std::optional<int> RispondiSenzaFinestra(const parvik::Argomenti& argomenti) {
  if (argomenti.Cosa == parvik::Richiesta::Editore) return std::nullopt;
  if (argomenti.Cosa == parvik::Richiesta::Aiuto) std::cout << parvik::AiutoEditore;
  if (argomenti.Cosa == parvik::Richiesta::Versione)
    std::cout << "Ordavia (parvik32) Version " << parvik::VersioneVisibile << '\n';
  return EXIT_SUCCESS;
}

/// Where the program runs, with the host directory that the command line names.
parvik::Ambiente AmbienteDa(const parvik::Argomenti& argomenti, const char* programma) {
  parvik::Ambiente ambiente = parvik::AmbienteDelProcesso(programma);
  if (argomenti.Velkor) ambiente.DirVelkor = std::filesystem::absolute(*argomenti.Velkor);
  if (argomenti.Esempio) ambiente.DirVelkor = std::filesystem::absolute(*argomenti.Esempio);
  return ambiente;
}

/// The start-up sequence; a signal ends it as any other reason not to go on.
std::optional<parvik::DatiAvvio> AvviaConSegnali(const parvik::Ambiente& ambiente,
                                                 const parvik::SegnaliFine& segnali,
                                                 parvik::Interlocutore& interlocutore) {
  bool finita = false;
  const parvik::qtSegnali fine(segnali, EXIT_FAILURE, [&finita] { return finita = true; });
  auto dati = parvik::Avvia(ambiente, interlocutore);
  return finita ? std::nullopt : std::move(dati);
}

}  // namespace

int main(int argc, char** argv) {
  parvik::PreparaProcesso();
  const auto letti = parvik::LeggiArgomenti({argv + 1, static_cast<std::size_t>(std::max(argc - 1, 0))});
  if (!letti) return Rifiuta(letti.Errore() + " (--help elenca gli argomenti)", RigaDiComandoNonValida);
  if (const auto stato = RispondiSenzaFinestra(*letti)) return *stato;
  const parvik::Ambiente ambiente = AmbienteDa(*letti, argv[0]);
  if (letti->Esempio) {
    const auto copiato = parvik::CopiaEsempio(parvik::DirEsempio(ambiente.DirProgramma), ambiente.DirVelkor);
    if (!copiato) return Rifiuta(copiato.Errore(), EXIT_FAILURE);
  }
  parvik::PreparaLocale();
  const parvik::SegnaliFine segnali;  // before the toolkit's threads
  const auto programma = parvik::ApriSchermo(argc, argv, segnali);
  QApplication::setApplicationName("parvik32");
  QGuiApplication::setDesktopFileName("org.ordavia.parvik32");
  if (!parvik::ParlaItaliano(*programma))
    std::cerr << "parvik32: manca la traduzione italiana di Qt (qtbase_it)\n";
  parvik::qtDialoghi dialoghi;
  QObject::connect(programma.get(), &parvik::qtProgramma::MemoriaEsaurita, [&dialoghi] {
    dialoghi.Chiedi({.Testo = parvik::TestoErrore(parvik::NumeroErrore::MemoriaEsaurita)});
  });
  auto dati = AvviaConSegnali(ambiente, segnali, dialoghi);
  if (!dati) return EXIT_FAILURE;
  std::optional<std::size_t> tipo;
  if (letti->Tipo) tipo = parvik::TipoPerNumero(dati->Campi, *letti->Tipo);
  if (letti->Tipo && !tipo) {
    return Rifiuta("tipo di documento " + std::to_string(*letti->Tipo) + " sconosciuto",
                   RigaDiComandoNonValida);
  }
  parvik::frmParvik finestra(std::move(*dati), dialoghi);
  dialoghi.ImpostaPadre(&finestra);
  const parvik::qtSegnali fineSessione(segnali, EXIT_SUCCESS, [&finestra] { return finestra.PuoChiudere(); });
  finestra.show();
  if (tipo || letti->File)
    QTimer::singleShot(0, &finestra, [&finestra, tipo, &letti] { finestra.Comincia(tipo, letti->File); });
  QTimer::singleShot(AttesaIcona, programma.get(),
                     [] { QApplication::setWindowIcon(QIcon(":/ordavia.png")); });
  return QApplication::exec();
}

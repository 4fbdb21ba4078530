#include "batch/Messaggi.h"

#include <algorithm>

#include "common/TestoMostrabile.h"
#include "common/TestoPercorso.h"
#include "common/Windows1252.h"
#include "sistema/UscitaStandard.h"

namespace parvik::batch {

void Segnala(std::string_view testo) {
  std::string riga;
  for (const char c : testo) {
    if (c == '\r') continue;
    if (c == '\n') {
      riga += " - ";
    } else {
      riga += c;
    }
  }
  riga = "parvik32-batch: " + Mostrabile(riga) + '\n';
  ScriviErrori(riga);
}

void Segnala(const std::filesystem::path& file, std::string_view testo) {
  Segnala(Mostrabile(TestoPercorso(file)) + ": " + std::string(testo));
}

void Segnala(const std::filesystem::path& file, NumeroErrore errore) {
  Segnala(file, TestoErrore(errore));
}

bool SegnalaScritto(const std::filesystem::path& file, const EsitoScrittura& scritto) {
  if (!scritto) {
    Segnala(file, TestoErrore(scritto.Errore()));
    return false;
  }
  if (const std::string avviso = TestoAvviso(*scritto); !avviso.empty()) Segnala(file, "avviso: " + avviso);
  return true;
}

std::string PerTabella(std::string_view ansi) {
  constexpr unsigned char Cancellazione = 0x7F;
  std::string pulito(ansi);
  const auto controllo = [](char c) {
    const auto u = static_cast<unsigned char>(c);
    return u < ' ' || u == Cancellazione;
  };
  std::ranges::replace_if(pulito, controllo, ' ');
  return Utf8DaAnsi(pulito);
}

bool Stampa(std::string_view testo) {
  const Esito<void> scritto = ScriviUscita(testo);
  if (!scritto) Segnala("uscita standard", scritto.Errore());
  return static_cast<bool>(scritto);
}

}  // namespace parvik::batch

#include "batch/Messaggi.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>

#include "common/Windows1252.h"

namespace parvik::batch {

void Segnala(std::string_view testo) {
  std::string riga = "parvik32-batch: ";
  for (const char c : testo) {
    if (c == '\r') continue;
    if (c == '\n') {
      riga += " - ";
    } else {
      riga += c;
    }
  }
  riga += '\n';
  // Nobody is left to tell when standard error itself fails.
  static_cast<void>(std::fwrite(riga.data(), 1, riga.size(), stderr));
}

void Segnala(const std::filesystem::path& file, std::string_view testo) {
  Segnala(file.string() + ": " + std::string(testo));
}

void Segnala(const std::filesystem::path& file, NumeroErrore errore) {
  Segnala(file, TestoErrore(errore));
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
  if (std::fwrite(testo.data(), 1, testo.size(), stdout) == testo.size() && std::fflush(stdout) == 0)
    return true;
  Segnala("uscita standard", DaErrno(errno));
  return false;
}

}  // namespace parvik::batch

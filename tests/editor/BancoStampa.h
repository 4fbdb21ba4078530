// The editor with a template of one section that there is something to print of.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <utility>

#include "BancoEditore.h"

namespace parvik::prova {

/// From UTF-8 with « » for the delimiters.
inline std::string Byte(std::string testo) {
  for (const auto& [utf8, byte] : {std::pair("«", '\xAB'), std::pair("»", '\xBB')}) {
    for (std::size_t i = 0; (i = testo.find(utf8, i)) != std::string::npos;) testo.replace(i, 2, 1, byte);
  }
  return testo;
}

class Stampa : public BancoEditore {
 protected:
  Stampa() {
    editore_.ScegliTipo(Listino);
    Imposta({Byte("Listino «V1;5»\r\n«S;GR»fine\r\n"), "mai scelto", "mai scelto"});
    vista_.Anteprime.clear();
  }

  void StampaSu(std::optional<Destinazione> destinazione) {
    vista_.DestinazioneScelta = destinazione;
    editore_.Stampa();
  }

  void StampaSuFile(const std::filesystem::path& file) {
    interlocutore_.Scegliera(file);
    StampaSu(Destinazione::File);
  }
};

inline constexpr const char* TestoReso = "Listino $$$$$\r\nfine\r\n";

}  // namespace parvik::prova

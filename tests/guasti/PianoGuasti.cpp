#include <charconv>

#include "guasti/Guasti.h"

namespace parvik::prova {
namespace {

constexpr char FineCampo = '\n';

std::string_view Stacca(std::string_view& testo) {
  const std::size_t fine = testo.find(FineCampo);
  const std::string_view campo = testo.substr(0, fine);
  testo.remove_prefix(fine == std::string_view::npos ? testo.size() : fine + 1);
  return campo;
}

int Numero(std::string_view testo) {
  int numero = 0;
  std::from_chars(testo.data(), testo.data() + testo.size(), numero);
  return numero;
}

std::size_t Quanti(std::string_view testo) {
  return static_cast<std::size_t>(Numero(testo));
}

}  // namespace

std::string Scritto(const PianoGuasti& piano) {
  std::string testo = piano.Chiusa + FineCampo + std::to_string(piano.SenzaLucchetti) + FineCampo +
                      std::to_string(piano.Cartelle.size()) + FineCampo;
  for (const std::string& cartella : piano.Cartelle) testo += cartella + FineCampo;
  for (const Guasto& guasto : piano.Guasti) {
    for (const int numero : {guasto.Chiamata, static_cast<int>(guasto.Quale), guasto.Errore,
                             static_cast<int>(guasto.PerSempre)}) {
      testo += std::to_string(numero) + FineCampo;
    }
  }
  return testo;
}

PianoGuasti DaScritto(std::string_view testo) {
  PianoGuasti piano;
  piano.Chiusa = Stacca(testo);
  piano.SenzaLucchetti = Numero(Stacca(testo));
  piano.Cartelle.resize(Quanti(Stacca(testo)));
  for (std::string& cartella : piano.Cartelle) cartella = Stacca(testo);
  while (!testo.empty()) {
    Guasto& guasto = piano.Guasti.emplace_back();
    guasto.Chiamata = Numero(Stacca(testo));
    guasto.Quale = static_cast<Guasto::Genere>(Numero(Stacca(testo)));
    guasto.Errore = Numero(Stacca(testo));
    guasto.PerSempre = Numero(Stacca(testo)) != 0;
  }
  return piano;
}

}  // namespace parvik::prova

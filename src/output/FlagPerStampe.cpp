#include "output/FlagPerStampe.h"

#include <string_view>

#include "common/NumeroLeniente.h"

namespace parvik {
namespace {

constexpr std::size_t LarghezzaNumero = 2;
constexpr std::size_t LarghezzaDescrizione = 60;
constexpr char SegnoVero = 'V';
constexpr char SegnoFalso = 'F';

}  // namespace

void FlagPerStampe::Aggiungi(const Flag& flag) {
  std::string descrizione = flag.Descrizione;
  descrizione.resize(LarghezzaDescrizione, ' ');
  const std::string numero = (std::to_string(flag.Codice) + " ").substr(0, LarghezzaNumero);
  righe_.push_back("F" + numero + "  " + descrizione + "   " + SegnoFalso);
}

void FlagPerStampe::Svuota() {
  righe_.clear();
  ++cambiamenti_;
}

std::vector<ErroreSezione> FlagPerStampe::Carica(const Catalogo& catalogo, const TipoDoc& tipo) {
  std::vector<ErroreSezione> errori;
  Svuota();
  for (const Sezione sezione : TutteLeSezioni) {
    if (static_cast<int>(sezione) >= tipo.NumSezioni) break;
    const Tabella<Flag> tabella = catalogo.LeggiFlags(tipo, sezione);
    for (const Flag& flag : tabella.Voci) Aggiungi(flag);
    if (tabella.Errore) errori.push_back({sezione, *tabella.Errore, tabella.RigaErrore});
    if (tabella.Errore == NumeroErrore::ArgomentoNonValido) return errori;
  }
  for (const Flag& condizione : CondPagina()) Aggiungi(condizione);
  return errori;
}

void FlagPerStampe::SettaFlag(std::size_t riga, bool vero) {
  if (vero == Vero(riga)) return;
  righe_[riga].back() = vero ? SegnoVero : SegnoFalso;
  ++cambiamenti_;
}

void FlagPerStampe::AzzeraTutti() {
  for (std::size_t riga = 0; riga < righe_.size(); ++riga) SettaFlag(riga, false);
}

double FlagPerStampe::Numero(std::size_t riga) const {
  return NumeroLeniente(std::string_view(righe_[riga]).substr(1));
}

bool FlagPerStampe::Vero(std::size_t riga) const {
  return righe_[riga].back() == SegnoVero;
}

bool FlagPerStampe::SettaNumero(double numero, bool vero) {
  bool trovato = false;
  for (std::size_t i = 0; i < righe_.size(); ++i) {
    if (Numero(i) != numero) continue;
    SettaFlag(i, vero);
    trovato = true;
  }
  return trovato;
}

}  // namespace parvik

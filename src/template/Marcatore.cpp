#include "template/Marcatore.h"

#include "common/Delimitatori.h"
#include "common/LettoreRighe.h"
#include "common/NumeroLeniente.h"
#include "common/Ritagli.h"
#include "template/CopiaRighe.h"

namespace parvik {
namespace {

constexpr std::size_t NonTrovato = std::string_view::npos;

// In two pieces: in one literal the C would belong to the escape.
constexpr std::string_view InizioMarcatore =
    "\xAE"
    "C";

/// Looks for ";" from byte `da` on and gives the position after it, or 0: without a separator, what should
/// follow it is looked for from the start of the line.
std::size_t DopoSeparatore(std::string_view riga, std::size_t da) {
  const std::size_t trovato = riga.find(';', da);
  return trovato == NonTrovato ? 0 : trovato + 1;
}

void LeggiInterruttori(std::string_view testo, ImpostazioniCorpo& corpo) {
  const std::string_view primo = testo.substr(0, 1);
  const std::string_view secondo = Da(testo, 1).substr(0, 1);
  if (primo == std::string_view(&DelimFileChiusura, 1)) {
    corpo.FlagSbarra.clear();
    corpo.FlagAccorpa.clear();
    return;
  }
  if (primo == "C" || primo == "S") {
    corpo.FlagSbarra = primo == "C" ? "C" : "";
    corpo.FlagAccorpa = primo == "S" ? "S" : "";
  }
  if (secondo != std::string_view(&DelimFileChiusura, 1)) corpo.FlagAccorpa = secondo;
}

/// Takes what a text begins with, piece by piece.
class Assaggio {
 public:
  explicit Assaggio(std::string_view testo) : testo_(testo) {}

  std::size_t Presi() const { return presi_; }
  bool Prendi(char c) {
    const bool preso = presi_ < testo_.size() && testo_[presi_] == c;
    if (preso) ++presi_;
    return preso;
  }
  /// A minus sign or none, and digits.
  bool PrendiIntero() {
    Prendi('-');
    const std::size_t prima = presi_;
    while (presi_ < testo_.size() && Cifra(testo_[presi_])) ++presi_;
    return presi_ > prima;
  }

 private:
  std::string_view testo_;
  std::size_t presi_ = 0;
};

std::size_t FineRigaDa(std::string_view byte, std::size_t inizio) {
  LettoreRighe righe(byte.substr(inizio));
  righe.Prossima();
  return byte.size() - righe.Resto().size();
}

}  // namespace

std::optional<Marcatore> TrovaMarcatore(std::string_view byte, std::size_t da) {
  if (da == 0) da = FineRigaDa(byte, 0);
  const std::size_t coppia = TrovaCoppia(byte, InizioMarcatore, da);
  if (coppia == NonTrovato) return std::nullopt;
  const std::size_t dopoCr = byte.rfind('\r', coppia) + 1;  // another line lies before this one
  const std::size_t inizio = dopoCr + (byte[dopoCr] == '\n' ? 1 : 0);
  return Marcatore{.InizioRiga = inizio, .Coppia = coppia, .FineRiga = FineRigaDa(byte, inizio)};
}

std::size_t MarcatoreIntero(std::string_view testo) {
  const bool diFile = testo.starts_with(DelimFileApertura);
  Assaggio assaggio(testo);
  const bool comincia = assaggio.Prendi(diFile ? DelimFileApertura : DelimApertura) && assaggio.Prendi('C');
  const bool numeri = comincia && assaggio.PrendiIntero() && assaggio.Prendi(';') &&
                      assaggio.PrendiIntero() && assaggio.Prendi(';');
  if (!numeri) return 0;
  assaggio.Prendi('C');
  assaggio.Prendi('S');
  return assaggio.Prendi(diFile ? DelimFileChiusura : DelimChiusura) ? assaggio.Presi() : 0;
}

Esito<void> LeggiMarcatore(std::string_view byte, const Marcatore& marcatore, ImpostazioniCorpo& corpo) {
  const std::string_view riga =
      LettoreRighe(byte.substr(0, marcatore.FineRiga).substr(marcatore.InizioRiga)).Prossima().value_or("");
  const std::size_t inizio = marcatore.Coppia - marcatore.InizioRiga;
  const Esito<std::int16_t> righe = InteroLeniente(Da(riga, inizio + InizioMarcatore.size()));
  if (!righe) return righe.Errore();
  corpo.RigheCorpo = *righe;
  const std::size_t dopoPrimo = DopoSeparatore(riga, inizio);
  const Esito<std::int16_t> linee = InteroLeniente(Da(riga, dopoPrimo));
  if (!linee) return linee.Errore();
  corpo.LineeCorpo = *linee;
  LeggiInterruttori(Da(riga, DopoSeparatore(riga, dopoPrimo)), corpo);
  return {};
}

std::string RigaMarcatore(const ImpostazioniCorpo& corpo) {
  std::string riga(InizioMarcatore);
  riga += std::to_string(corpo.RigheCorpo) + ";" + std::to_string(corpo.LineeCorpo) + ";";
  riga += corpo.FlagSbarra + corpo.FlagAccorpa;
  riga += DelimFileChiusura;
  return riga.append(FineRiga);
}

}  // namespace parvik

#include "catalogue/RigaCatalogo.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "common/NumeroLeniente.h"
#include "common/Ritagli.h"

namespace parvik {
namespace {

constexpr std::size_t CifreNumeroRiga = 4;
constexpr std::size_t NonTrovato = std::string_view::npos;

/// The record of a line: where it begins, and its text.
using Record = CampoRiga;

/// Takes the fields of a record one after the other. The first failure stays: what is taken after it is
/// empty.
class LettoreCampi {
 public:
  explicit LettoreCampi(const Record& record) : posto_(record.Byte), resto_(record.Testo) {}

  /// Up to the next ";", which must be there.
  std::string_view Testo() {
    campo_ = posto_;
    const std::size_t fine = resto_.find(';');
    if (fine == NonTrovato) return Fallisci(NumeroErrore::ArgomentoNonValido);
    const std::string_view campo = resto_.substr(0, fine);
    resto_.remove_prefix(fine + 1);
    posto_ += fine + 1;
    return campo;
  }
  std::int16_t Numero() { return Converti(Testo()); }

  /// All that is left.
  std::string_view Ultimo() {
    campo_ = posto_;
    return fallito_ ? std::string_view() : std::exchange(resto_, {});
  }
  std::int16_t UltimoNumero() { return Converti(Ultimo()); }

  bool CiSonoAltri() const { return !fallito_ && resto_.find(';') != NonTrovato; }
  /// What was made of the fields, unless one of them failed.
  template <class Voce>
  Esito<Voce, ErroreRiga> Letta(Voce voce) const {
    if (fallito_) return errore_;
    return voce;
  }

 private:
  std::string_view Fallisci(NumeroErrore errore) {
    if (!fallito_) errore_ = {.Numero = errore, .Byte = campo_};
    fallito_ = true;
    resto_ = {};
    return {};
  }
  std::int16_t Converti(std::string_view campo) {
    const Esito<std::int16_t> numero = InteroLeniente(campo);
    if (numero) return *numero;
    Fallisci(numero.Errore());
    return 0;
  }

  std::size_t posto_;      // where what is left begins
  std::size_t campo_ = 0;  // where the field begins that was taken last
  std::string_view resto_;
  bool fallito_ = false;
  ErroreRiga errore_{.Numero = NumeroErrore::ArgomentoNonValido, .Byte = 0};
};

/// What follows the first double quote of a line.
std::optional<Record> RecordCorpo(std::string_view riga) {
  const std::size_t apice = riga.find('"');
  if (apice == NonTrovato) return std::nullopt;
  return Record{.Byte = apice + 1, .Testo = riga.substr(apice + 1)};
}

/// What lies between the first and the second double quote.
std::optional<Record> RecordTipo(std::string_view riga) {
  std::optional<Record> record = RecordCorpo(riga);
  const std::size_t fine = record ? record->Testo.find('"') : NonTrovato;
  if (fine == NonTrovato) return std::nullopt;
  record->Testo = record->Testo.substr(0, fine);
  return record;
}

constexpr ErroreRiga NonSiDivide = {.Numero = NumeroErrore::ArgomentoNonValido, .Byte = 0};

/// The slot that a document-type line fills; it may lie outside the table.
Esito<int> SlotDi(std::string_view riga) {
  const std::size_t virgola = riga.find(',');
  const Esito<std::int16_t> numero =
      InteroLeniente(virgola == NonTrovato ? std::string_view() : riga.substr(0, virgola));
  if (!numero) return numero.Errore();
  return *numero - 1;
}

TipoDoc LeggiTipo(int slot, LettoreCampi& campi) {
  TipoDoc tipo;
  tipo.Indice = static_cast<std::int16_t>(slot);
  tipo.Descrizione = Rifila(campi.Testo());
  tipo.Titolo = campi.Testo();
  tipo.NumSezioni = campi.Numero();
  for (VociSezione& voci : tipo.Voci) voci.Variabili = {.Da = campi.Numero(), .A = campi.Numero()};
  for (VociSezione& voci : tipo.Voci) {
    voci.Flag.Da = campi.Numero();
    voci.Flag.A = &voci == &tipo.Voci.back() ? campi.UltimoNumero() : campi.Numero();
  }
  return tipo;
}

}  // namespace

bool RigaIgnorata(std::string_view riga) {
  return riga.empty() || riga.starts_with("//");
}

Esito<TipoDoc, ErroreRiga> LeggiRigaTipo(std::string_view riga) {
  const Esito<int> slot = SlotDi(riga);
  if (!slot) return ErroreRiga{.Numero = slot.Errore(), .Byte = 0};
  const std::optional<Record> record = RecordTipo(riga);
  if (!record) return NonSiDivide;
  if (*slot < 0 || *slot >= static_cast<int>(MaxTipiDoc))
    return ErroreRiga{.Numero = NumeroErrore::IndiceFuoriIntervallo, .Byte = 0};
  LettoreCampi campi(*record);
  TipoDoc tipo = LeggiTipo(*slot, campi);
  return campi.Letta(std::move(tipo));
}

Esito<Variabile, ErroreRiga> LeggiRigaVariabile(std::string_view riga) {
  const std::optional<Record> record = RecordCorpo(riga);
  if (!record) return NonSiDivide;
  LettoreCampi campi(*record);
  Variabile variabile;
  variabile.Descrizione = campi.Testo();
  variabile.Intero1 = campi.Numero();
  variabile.Intero2 = campi.Numero();
  variabile.Testo1 = campi.Testo();
  variabile.Intero3 = campi.Numero();
  variabile.Intero4 = campi.Numero();
  variabile.Intero5 = campi.Numero();
  variabile.Intero6 = campi.Numero();
  variabile.Intero7 = campi.Numero();
  variabile.Intero8 = campi.Numero();
  const bool conEuro = campi.CiSonoAltri();
  variabile.Testo2 = conEuro ? campi.Testo() : campi.Ultimo();
  variabile.Testo3 = conEuro ? campi.Ultimo() : "0";
  return campi.Letta(std::move(variabile));
}

Esito<Flag, ErroreRiga> LeggiRigaFlag(std::string_view riga) {
  const std::optional<Record> record = RecordCorpo(riga);
  if (!record) return NonSiDivide;
  LettoreCampi campi(*record);
  Flag flag;
  flag.Descrizione = campi.Testo();
  flag.Codice = campi.Numero();
  flag.Valore = campi.Ultimo();
  return campi.Letta(std::move(flag));
}

double NumeroRigaCorpo(std::string_view riga) {
  return NumeroLeniente(riga.substr(0, CifreNumeroRiga));
}

CampoRiga CampoDi(std::string_view riga, std::size_t quale) {
  CampoRiga campo = RecordCorpo(riga).value_or(CampoRiga{.Byte = 0, .Testo = riga});
  for (; quale > 0; --quale) {
    const std::size_t fine = campo.Testo.find(';');
    if (fine == NonTrovato) break;
    campo.Byte += fine + 1;
    campo.Testo.remove_prefix(fine + 1);
  }
  campo.Testo = campo.Testo.substr(0, campo.Testo.find_first_of(";\""));
  return campo;
}

}  // namespace parvik

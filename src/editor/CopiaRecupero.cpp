#include "editor/CopiaRecupero.h"

#include <charconv>
#include <memory>
#include <utility>

#include "common/Impronta.h"
#include "common/TestoPercorso.h"
#include "sistema/LetturaFile.h"

namespace parvik {
namespace {

constexpr std::string_view Inizio = "ordavia-recupero 1\n";
constexpr unsigned int CifreImpronta = 16;

// The names of the fields, which stand in this order.
constexpr std::string_view Quando = "quando";
constexpr std::string_view Tipo = "tipo";
constexpr std::string_view Nome = "nome";
constexpr std::string_view Righe = "righe";
constexpr std::string_view Linee = "linee";
constexpr std::string_view Sbarra = "sbarra";
constexpr std::string_view Accorpa = "accorpa";
constexpr std::string_view OrigineFile = "origine-file";  // with the two behind it, or none of them
constexpr std::string_view OrigineDimensione = "origine-dimensione";
constexpr std::string_view OrigineImpronta = "origine-impronta";
constexpr std::array<std::string_view, MaxSezioni> Sezioni = {"testata", "corpo", "piede"};
constexpr std::string_view Fine = "impronta";  // of all bytes in front of this field

/// A field: its name, the number of its bytes, on the next line the bytes.
void Metti(std::string& in, std::string_view nome, std::string_view byte) {
  in.append(nome).append(" ").append(std::to_string(byte.size())).append("\n").append(byte).append("\n");
}

template <class Numero>
std::optional<Numero> NumeroDa(std::string_view testo, int base = 10) {
  Numero numero = 0;
  const auto [resto, errore] = std::from_chars(testo.data(), testo.data() + testo.size(), numero, base);
  if (errore != std::errc() || resto != testo.data() + testo.size()) return std::nullopt;
  return numero;
}

/// Reads one field after the other; the first that is not there ends it.
class LettoreCampi {
 public:
  explicit LettoreCampi(std::string_view resto) : resto_(resto) {}

  bool Sano() const { return sano_; }
  bool Finito() const { return sano_ && resto_.empty(); }
  std::size_t Resto() const { return resto_.size(); }
  bool Segue(std::string_view nome) const {
    return resto_.starts_with(nome) && resto_.substr(nome.size()).starts_with(' ');
  }

  std::string Testo(std::string_view nome) { return std::string(Campo(nome)); }

  template <class Numero>
  Numero NumeroIn(std::string_view nome, int base = 10) {
    const auto numero = NumeroDa<Numero>(Campo(nome), base);
    sano_ = sano_ && numero.has_value();
    return numero.value_or(0);
  }

 private:
  std::string_view Campo(std::string_view nome) {
    if (!sano_ || !Segue(nome)) return Guasto();
    resto_.remove_prefix(nome.size() + 1);
    const std::size_t riga = resto_.find('\n');
    if (riga == std::string_view::npos) return Guasto();
    const auto quanti = NumeroDa<std::size_t>(resto_.substr(0, riga));
    resto_.remove_prefix(riga + 1);
    if (!quanti || *quanti >= resto_.size() || resto_[*quanti] != '\n') return Guasto();
    const std::string_view byte = resto_.substr(0, *quanti);
    resto_.remove_prefix(*quanti + 1);
    return byte;
  }

  std::string_view Guasto() {
    sano_ = false;
    return {};
  }

  std::string_view resto_;
  bool sano_ = true;
};

ImprontaFile LeggiOrigine(LettoreCampi& campi) {
  ImprontaFile origine;
  origine.File = PercorsoDaTesto(campi.Testo(OrigineFile));
  origine.Dimensione = campi.NumeroIn<std::uint64_t>(OrigineDimensione);
  origine.Impronta = campi.NumeroIn<std::uint64_t>(OrigineImpronta, 16);
  return origine;
}

}  // namespace

ImprontaFile ImprontaDi(const Provenienza& origine) {
  return {.File = origine.File, .Dimensione = origine.Byte->size(), .Impronta = Impronta(*origine.Byte)};
}

std::optional<Provenienza> AncoraUguale(const ImprontaFile& origine) {
  std::error_code errore;
  if (std::filesystem::file_size(origine.File, errore) != origine.Dimensione || errore) return std::nullopt;
  Esito<std::string> byte = LeggiFile(origine.File);
  if (!byte) return std::nullopt;
  Provenienza letta{.File = origine.File, .Byte = std::make_shared<const std::string>(std::move(*byte))};
  if (ImprontaDi(letta) != origine) return std::nullopt;
  return letta;
}

std::string ScriviCopia(const CopiaRecupero& copia) {
  std::string byte(Inizio);
  Metti(byte, Quando, std::to_string(copia.Quando));
  Metti(byte, Tipo, std::to_string(copia.Tipo));
  Metti(byte, Nome, TestoPercorso(copia.NomeFile));
  Metti(byte, Righe, std::to_string(copia.Corpo.RigheCorpo));
  Metti(byte, Linee, std::to_string(copia.Corpo.LineeCorpo));
  Metti(byte, Sbarra, copia.Corpo.FlagSbarra);
  Metti(byte, Accorpa, copia.Corpo.FlagAccorpa);
  if (copia.Origine) {
    Metti(byte, OrigineFile, TestoPercorso(copia.Origine->File));
    Metti(byte, OrigineDimensione, std::to_string(copia.Origine->Dimensione));
    Metti(byte, OrigineImpronta, Esadecimale(copia.Origine->Impronta, CifreImpronta));
  }
  for (const Sezione sezione : TutteLeSezioni)
    Metti(byte, Sezioni[Indice(sezione)], copia.Testi[Indice(sezione)]);
  Metti(byte, Fine, Esadecimale(Impronta(byte), CifreImpronta));
  return byte;
}

std::optional<CopiaRecupero> LeggiCopia(std::string_view byte) {
  if (!byte.starts_with(Inizio)) return std::nullopt;
  LettoreCampi campi(byte.substr(Inizio.size()));
  CopiaRecupero copia;
  copia.Quando = campi.NumeroIn<std::int64_t>(Quando);
  copia.Tipo = campi.NumeroIn<int>(Tipo);
  copia.NomeFile = PercorsoDaTesto(campi.Testo(Nome));
  copia.Corpo.RigheCorpo = campi.NumeroIn<std::int16_t>(Righe);
  copia.Corpo.LineeCorpo = campi.NumeroIn<std::int16_t>(Linee);
  copia.Corpo.FlagSbarra = campi.Testo(Sbarra);
  copia.Corpo.FlagAccorpa = campi.Testo(Accorpa);
  if (campi.Segue(OrigineFile)) copia.Origine = LeggiOrigine(campi);
  for (const Sezione sezione : TutteLeSezioni)
    copia.Testi[Indice(sezione)] = campi.Testo(Sezioni[Indice(sezione)]);
  const std::string_view davanti = byte.substr(0, byte.size() - campi.Resto());
  const auto impronta = campi.NumeroIn<std::uint64_t>(Fine, 16);
  if (!campi.Finito() || impronta != Impronta(davanti)) return std::nullopt;
  return copia;
}

}  // namespace parvik

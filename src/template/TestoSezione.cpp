#include "template/TestoSezione.h"

#include <algorithm>

#include "common/Delimitatori.h"
#include "common/Precondizione.h"

namespace parvik {
namespace {

constexpr char Cr = '\r';
constexpr char Lf = '\n';

/// Whether every CR has its LF.
bool FiniInteri(std::string_view byte) {
  for (std::size_t cr = byte.find(Cr); cr != std::string_view::npos; cr = byte.find(Cr, cr + 1))
    if (!byte.substr(cr).starts_with(FineRiga)) return false;
  return true;
}

}  // namespace

std::string ConFiniRiga(std::string_view byte) {
  std::string intero;
  intero.reserve(byte.size());
  for (std::size_t i = 0; i < byte.size(); ++i) {
    intero += byte[i];
    if (byte[i] == Cr && !byte.substr(i).starts_with(FineRiga)) intero += Lf;
  }
  return intero;
}

Modifica Differenza(std::string_view prima, std::string_view dopo) {
  const auto davanti = std::mismatch(prima.begin(), prima.end(), dopo.begin(), dopo.end());
  const auto inizio = static_cast<std::size_t>(davanti.first - prima.begin());
  prima.remove_prefix(inizio);
  dopo.remove_prefix(inizio);
  const auto dietro = std::mismatch(prima.rbegin(), prima.rend(), dopo.rbegin(), dopo.rend());
  auto uguali = static_cast<std::size_t>(dietro.first - prima.rbegin());
  if (uguali > 0 && prima[prima.size() - uguali] == Lf) --uguali;  // line ends stay whole
  return {.Dove = inizio,
          .Tolti = prima.size() - uguali,
          .Messi = std::string(dopo.substr(0, dopo.size() - uguali))};
}

TestoSezione::TestoSezione(std::string_view byte)
    : albero_(FiniInteri(byte) ? AlberoTesto(byte) : AlberoTesto(ConFiniRiga(byte))) {}

bool TestoSezione::operator==(const TestoSezione& altro) const {
  if (albero_.Stesso(altro.albero_)) return true;
  return Dimensione() == altro.Dimensione() && Byte() == altro.Byte();
}

Selezione TestoSezione::Riga(std::size_t riga) const {
  PARVIK_ESIGE(riga < Righe(), "the text has that line");
  const std::size_t inizio = riga == 0 ? 0 : albero_.Trova(Segno::FineRiga, riga - 1) + FineRiga.size();
  return {.Inizio = inizio, .Lunghezza = albero_.Trova(Segno::FineRiga, riga) - inizio};
}

RigaColonna TestoSezione::RigaColonnaDi(std::size_t byte) const {
  const std::size_t riga = RigaDi(byte);
  return {.Riga = riga, .Colonna = byte - Riga(riga).Inizio};
}

std::size_t TestoSezione::ByteDi(RigaColonna posto) const {
  const Selezione riga = Riga(posto.Riga);
  PARVIK_ESIGE(posto.Colonna <= riga.Lunghezza, "the line has that column");
  return riga.Inizio + posto.Colonna;
}

std::optional<std::size_t> TestoSezione::Precedente(Segno segno, std::size_t prima) const {
  const std::size_t quanti = albero_.Conta(segno, prima);
  if (quanti == 0) return std::nullopt;
  return albero_.Trova(segno, quanti - 1);
}

std::optional<std::size_t> TestoSezione::Seguente(Segno segno, std::size_t da) const {
  const std::size_t posto = albero_.Trova(segno, albero_.Conta(segno, da));
  if (posto == Dimensione()) return std::nullopt;
  return posto;
}

// The nearest » in front of a place ends whatever there was: from there on the reading begins anew.
Pezzo TestoSezione::PezzoDi(std::size_t posto) const {
  PARVIK_ESIGE(posto < Dimensione(), "there is a byte");
  const auto chiusa = Precedente(Segno::Chiusura, posto);
  const std::size_t inizio = chiusa ? *chiusa + 1 : 0;
  const auto apertura = Seguente(Segno::Apertura, inizio);
  const auto chiusura = Seguente(Segno::Chiusura, posto);
  const bool codice = apertura && chiusura && *apertura < *chiusura;
  if (codice && *apertura <= posto)
    return {.Genere = GenerePezzo::Codice, .Inizio = *apertura, .Fine = *chiusura + 1};
  if (albero_[posto] == DelimApertura || albero_[posto] == DelimChiusura)
    return {.Genere = GenerePezzo::Delimitatore, .Inizio = posto, .Fine = posto + 1};
  const auto sciolta = Precedente(Segno::Apertura, posto);  // inside a code, or one that stays open
  const auto prossima = Seguente(Segno::Apertura, posto);
  return {.Genere = GenerePezzo::Testo,
          .Inizio = sciolta && *sciolta >= inizio ? *sciolta + 1 : inizio,
          .Fine = std::min(prossima.value_or(Dimensione()), chiusura.value_or(Dimensione()))};
}

std::vector<Pezzo> TestoSezione::PezziDi(Selezione parte) const {
  std::vector<Pezzo> pezzi;
  for (std::size_t posto = parte.Inizio; posto < parte.Fine(); posto = pezzi.back().Fine)
    pezzi.push_back(PezzoDi(posto));
  return pezzi;
}

std::optional<Pezzo> TestoSezione::CodiceAperto(std::size_t riga) const {
  const std::size_t inizio = Riga(riga).Inizio;
  if (inizio == 0) return std::nullopt;
  const Pezzo pezzo = PezzoDi(inizio - 1);  // of the line end: a code that it lies in goes on behind it
  if (pezzo.Genere != GenerePezzo::Codice) return std::nullopt;
  return pezzo;
}

TestoSezione TestoSezione::Con(const Modifica& modifica) const {
  const std::size_t fine = modifica.Dove + modifica.Tolti;
  const auto spezza = [this](std::size_t posto) {
    return posto > 0 && posto < Dimensione() && albero_[posto] == Lf && albero_[posto - 1] == Cr;
  };
  PARVIK_ESIGE(fine <= Dimensione() && !spezza(modifica.Dove) && !spezza(fine), "line ends stay whole");
  PARVIK_ESIGE(FiniInteri(modifica.Messi), "what comes has whole line ends");
  return TestoSezione(albero_.Con(modifica.Dove, fine, modifica.Messi));
}

}  // namespace parvik

// The catalogue: its head, and the tables of every section of every document type.
#include <algorithm>
#include <utility>
#include <vector>

#include "Bersaglio.h"
#include "catalogue/Catalogo.h"
#include "output/FlagPerStampe.h"

namespace parvik::fuzz {
namespace {

constexpr std::size_t LunghezzaRiga = 69;

std::string Numero(std::int16_t numero) {
  return ";" + std::to_string(numero);
}

std::string RigaDiTipo(const TipoDoc& tipo) {
  std::string riga = std::to_string(tipo.Indice + 1) + ",\"" + tipo.Descrizione + ";" + tipo.Titolo;
  riga += Numero(tipo.NumSezioni);
  for (const VociSezione& voci : tipo.Voci) riga += Numero(voci.Variabili.Da) + Numero(voci.Variabili.A);
  for (const VociSezione& voci : tipo.Voci) riga += Numero(voci.Flag.Da) + Numero(voci.Flag.A);
  return riga + "\"\r\n";
}

std::string RigaDi(const Variabile& v) {
  return "\"" + v.Descrizione + Numero(v.Intero1) + Numero(v.Intero2) + ";" + v.Testo1 + Numero(v.Intero3) +
         Numero(v.Intero4) + Numero(v.Intero5) + Numero(v.Intero6) + Numero(v.Intero7) + Numero(v.Intero8) +
         ";" + v.Testo2 + ";" + v.Testo3 + "\r\n";
}

std::string RigaDi(const Flag& flag) {
  return "\"" + flag.Descrizione + Numero(flag.Codice) + ";" + flag.Valore + "\r\n";
}

/// A catalogue of one type that offers these entries; a last line makes the range long enough for one.
template <class Voce>
std::string CatalogoCon(const std::vector<Voce>& voci) {
  const std::string intervallo = ";1;" + std::to_string(voci.size() + 1);
  std::string testo =
      "1,\"a;b;1" + intervallo + ";0;0;0;0" + intervallo + ";0;0;0;0\"\r\n//fine documenti\r\n";
  std::string numero = "0001,";
  for (const Voce& voce : voci) testo += std::exchange(numero, "0000,") + RigaDi(voce);
  return testo + numero + "\"x;1;1;;1;1;1;1;1;1;;\r\n";
}

Tabella<Variabile> Rileggi(const Catalogo& catalogo, const Variabile&) {
  return catalogo.LeggiVariabili(catalogo.TipiDoc()[0], Sezione::Testata);
}
Tabella<Flag> Rileggi(const Catalogo& catalogo, const Flag&) {
  return catalogo.LeggiFlags(catalogo.TipiDoc()[0], Sezione::Testata);
}

template <class Voce>
void ProvaTabella(const Tabella<Voce>& tabella) {
  Esigi(!tabella.Errore || tabella.Errore == NumeroErrore::ArgomentoNonValido ||
            tabella.Errore == NumeroErrore::Overflow,
        "a body line fails with error 5 or 6");
  if (tabella.Voci.empty()) return;
  const auto catalogo = Catalogo::CaricaCampi(CatalogoCon(tabella.Voci));
  Esigi(static_cast<bool>(catalogo), "a written catalogue can be read");
  Tabella<Voce> riletta = Rileggi(*catalogo, tabella.Voci.front());
  Esigi(!riletta.Errore && riletta.Voci.size() == tabella.Voci.size() + 1, "written entries can be read");
  riletta.Voci.pop_back();
  Esigi(riletta.Voci == tabella.Voci, "written entries are read as they were");
}

void ProvaFlagPerStampe(const Catalogo& catalogo, const TipoDoc& tipo) {
  FlagPerStampe flag;
  const auto errori = flag.Carica(catalogo, tipo);
  Esigi(errori.size() <= MaxSezioni, "a section has one error");
  for (std::size_t i = 0; i < flag.Righe().size(); ++i) {
    Esigi(flag.Righe()[i].size() == LunghezzaRiga && !flag.Vero(i), "a row has 69 bytes and is false");
  }
  for (std::size_t i = 0; i < flag.Righe().size(); ++i) {
    Esigi(flag.SettaNumero(flag.Numero(i), true) && flag.Vero(i),
          "a row is found by the number that it says");
  }
}

void ProvaTestata(const Catalogo& catalogo) {
  std::string testo;
  for (const TipoDoc& tipo : catalogo.TipiDoc()) {
    if (!tipo.Descrizione.empty()) testo += RigaDiTipo(tipo);
  }
  const auto riletto = Catalogo::CaricaCampi(testo + "//fine documenti");
  Esigi(static_cast<bool>(riletto), "written types can be read");
  for (std::size_t i = 0; i < MaxTipiDoc; ++i) {
    const TipoDoc& tipo = catalogo.TipiDoc()[i];
    if (tipo.Descrizione.empty()) continue;
    Esigi(RigaDiTipo(riletto->TipiDoc()[i]) == RigaDiTipo(tipo), "written types are read as they were");
  }
}

void Prova(std::string_view contenuto) {
  const auto catalogo = Catalogo::CaricaCampi(std::string(contenuto));
  if (!catalogo) {
    Esigi(catalogo.Errore().Riga >= 1, "an error has a line");
    return;
  }
  const auto elenco = catalogo->TipiElencati();
  Esigi(elenco.size() <= MaxTipiElencati, "at most 22 types are listed");
  Esigi(std::ranges::none_of(elenco, [](const TipoDoc* tipo) { return tipo->Descrizione.empty(); }),
        "listed types have a name");
  ProvaTestata(*catalogo);
  for (const TipoDoc& tipo : catalogo->TipiDoc()) {
    // A slot that no line fills offers nothing; the first one is tried all the same.
    if (tipo.Titolo.empty() && tipo.Indice == 0 && &tipo != catalogo->TipiDoc().data()) continue;
    for (const Sezione sezione : TutteLeSezioni) {
      ProvaTabella(catalogo->LeggiVariabili(tipo, sezione));
      ProvaTabella(catalogo->LeggiFlags(tipo, sezione));
      Esigi(catalogo->CaricaVariabili(tipo, sezione).Voci.size() >= 2, "a table of variables is never empty");
      const auto flag = catalogo->CaricaFlag(tipo, sezione);
      Esigi(flag.Errore.has_value() || flag.Voci.size() >= 5, "a table of flags has the page conditions");
    }
    ProvaFlagPerStampe(*catalogo, tipo);
  }
}

}  // namespace
}  // namespace parvik::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t dimensione) {
  parvik::fuzz::Prova(parvik::fuzz::Ingresso(dati, dimensione).Resto());
  return 0;
}

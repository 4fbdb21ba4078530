#include "verifica/DiProva.h"

#include <gtest/gtest.h>

namespace parvik::prova {
namespace {

constexpr std::string_view Testo =
    "1,\"Fattura;FATT*.IMG;3;1;3;11;12;21;22;31;32;41;42;51;52\"\r\n"
    "2,\"Etichetta;ETIC*.IMG;1;61;63;0;0;0;0;71;73;0;0;0;0\"\r\n"
    "3,\"Vuoto;VUOTO?.IMG;3;0;0;0;0;0;0;0;0;0;0;0;0\"\r\n"
    "4,\"Altro;FATT9*.IMG;3;0;0;0;0;0;0;0;0;0;0;0;0\"\r\n"
    "//fine documenti\r\n"
    "0001,\"Cliente;1;30;;1;0;0;0;0;0;0\r\n"
    "0002,\"Importo;2;12;;0;1;0;0;1;1;2;1\r\n"
    "0003,\"Note;3;40;;1;0;3;0;0;0;0\r\n"
    "0011,\"Articolo;11;16;;1;0;0;0;0;0;0\r\n"
    "0012,\"Quantit\xE0;12;10;;0;1;0;0;1;0;2;0\r\n"
    "0021,\"Totale;21;12;;0;1;0;0;0;0;0;0\r\n"
    "0022,\"Firma;22;12;;1;0;0;0;0;0;0\r\n"
    "0031,\"Estero;3;N\r\n"
    "0032,\"Agente;4;S\r\n"
    "0041,\"Lotto;14;N\r\n"
    "0042,\"Omaggio;16;N\r\n"
    "0051,\"Acconto;15;N\r\n"
    "0052,\"Saldo;17;N\r\n"
    "0061,\"Cliente;501;30;;1;0;0;0;0;0;0\r\n"
    "0062,\"Quantit\xE0;502;30;;0;1;0;0;0;0;0;0\r\n"
    "0063,\"Altro;503;30;;1;0;0;0;0;0;0\r\n"
    "0071,\"Estero;7;N\r\n"
    "0072,\"Barre;8;N\r\n"
    "0073,\"Reso;-8;N\r\n";

std::string Traduci(std::string_view scritto, char apertura, char chiusura) {
  constexpr std::string_view FineRiga = "¶";
  std::string byte;
  for (std::size_t i = 0; i < scritto.size(); ++i) {
    if (scritto.substr(i).starts_with(FineRiga)) {
      byte += "\r\n";
      i += FineRiga.size() - 1;
    } else {
      byte += scritto[i] == '<' ? apertura : scritto[i] == '>' ? chiusura : scritto[i];
    }
  }
  return byte;
}

}  // namespace

const Catalogo& CatalogoDiVerifica() {
  static const Esito<Catalogo, ErroreCatalogo> catalogo = Catalogo::CaricaCampi(std::string(Testo));
  return *catalogo;
}

const TipoDoc& TipoDiVerifica(int numero) {
  return CatalogoDiVerifica().TipiDoc()[static_cast<std::size_t>(numero) - 1];
}

std::string DelFile(std::string_view scritto) {
  return Traduci(scritto, '\xAE', '\xAF');
}

std::string DellaSezione(std::string_view scritto) {
  return Traduci(scritto, '\xAB', '\xBB');
}

std::string Elenco(const std::vector<Rilievo>& rilievi) {
  std::string elenco;
  for (const Rilievo& rilievo : rilievi) {
    if (!elenco.empty()) elenco += ", ";
    elenco += std::to_string(rilievo.Riga) + ":" + std::to_string(rilievo.Colonna) + " ";
    elenco += VoceDi(rilievo.Quale).Nome;
  }
  return elenco;
}

std::vector<Rilievo> Rilievi(std::string_view scritto, int tipo, const OpzioniVerifica& opzioni) {
  Verificatore verificatore(CatalogoDiVerifica(), TipoDiVerifica(tipo));
  EXPECT_TRUE(verificatore.Errori().empty());
  return *verificatore.File(DelFile(scritto), opzioni);
}

std::string Trova(std::string_view scritto, int tipo, const OpzioniVerifica& opzioni) {
  return Elenco(Rilievi(scritto, tipo, opzioni));
}

std::string ConTestata(std::string_view testata) {
  return std::string(testata) + "¶<C4;1;>¶<V11;16L>¶<V21;12R;#;0>¶";
}

std::string TrovaInTestata(std::string_view testata) {
  return Trova(ConTestata(testata));
}

}  // namespace parvik::prova

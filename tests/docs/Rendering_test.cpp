// docs/rendering.md
#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "catalogue/Catalogo.h"
#include "docs/Pagine.h"
#include "output/GeneraStampa.h"
#include "output/TracciaStampa.h"

namespace parvik::prova {
namespace {

constexpr std::string_view Pagina = "rendering.md";

/// The print flags of a type of one section that offers the flags of `righe`, lines 1 and on.
FlagPerStampe FlagDi(const std::string& righe, std::size_t quanti) {
  FlagPerStampe flag;
  const std::string testata =
      "1,\"Prova;P;1;0;0;0;0;0;0;1;" + std::to_string(quanti) + ";0;0;0;0\"\r\n//fine documenti\r\n";
  const auto catalogo = Catalogo::CaricaCampi(testata + righe);
  EXPECT_TRUE(catalogo);
  if (!catalogo) return flag;
  EXPECT_TRUE(flag.Carica(*catalogo, catalogo->TipiDoc()[0]).empty());
  return flag;
}

FlagPerStampe FlagDellaPagina() {
  return FlagDi(FileEsempio(Pagina, "flags"), BloccoEsempi(Pagina, "flags").size());
}

class Raccolta final : public UscitaRighe {
 public:
  bool Righe(std::string_view righe) override {
    Testo += righe;
    return true;
  }
  std::string Testo;
};

std::string Aspetti(std::string_view testo, const std::vector<Tratto>& tratti) {
  std::ostringstream detto;
  for (const Tratto& tratto : tratti) {
    const char lettera = tratto.Come.Grassetto      ? 'B'
                         : tratto.Come.Italico      ? 'I'
                         : tratto.Come.Sottolineato ? 'U'
                                                    : '-';
    detto << '[' << lettera << Punti(tratto.Come.Corpo) << ']'
          << testo.substr(tratto.Inizio, tratto.Lunghezza);
  }
  return detto.str();
}

TEST(RenderingPage, TellsWhatSectionsRenderTo) {
  for (const RigaEsempio& riga : TabellaEsempi(Pagina, "sections", 3)) {
    FlagPerStampe flag = FlagDellaPagina();
    const bool unoVero = !riga.Testo(1).empty();
    EXPECT_EQ(unoVero && flag.SettaNumero(riga.Numero(1), true), unoVero) << riga.Posto();
    const std::string testo = riga.Byte(0);
    Raccolta uscita;
    EXPECT_TRUE(GeneraStampa({.Testi = {testo}, .NumSezioni = 1, .Flag = flag}, TipoStampa::File, uscita));
    EXPECT_EQ(uscita.Testo, riga.Byte(2)) << riga.Posto();
  }
}

TEST(RenderingPage, TellsWhereTheBytesOfTheOutputComeFrom) {
  const FlagPerStampe flag;
  for (const RigaEsempio& riga : TabellaEsempi(Pagina, "trace", 4)) {
    const std::string testo = riga.Byte(0);
    Raccolta uscita;
    TracciaStampa traccia;
    EXPECT_TRUE(
        GeneraStampa({.Testi = {testo}, .NumSezioni = 1, .Flag = flag}, TipoStampa::File, uscita, traccia));
    EXPECT_EQ(uscita.Testo, riga.Byte(1)) << riga.Posto();
    const auto origine = traccia.OrigineDi(static_cast<std::size_t>(riga.Numero(2)));
    EXPECT_EQ(origine ? testo.substr(origine->Parte.Inizio, origine->Parte.Lunghezza) : "", riga.Byte(3))
        << riga.Posto();
  }
}

TEST(RenderingPage, TellsHowOftenTheBodyIsRendered) {
  const FlagPerStampe flag;
  for (const RigaEsempio& riga : TabellaEsempi(Pagina, "body", 4)) {
    const std::string corpo = riga.Byte(2);
    const DatiStampa dati{.Testi = {"", corpo, ""},
                          .NumSezioni = 3,
                          .RigheCorpo = static_cast<std::int16_t>(riga.Numero(0)),
                          .LineeCorpo = static_cast<std::int16_t>(riga.Numero(1)),
                          .Flag = flag};
    Raccolta uscita;
    EXPECT_TRUE(GeneraStampa(dati, TipoStampa::File, uscita));
    EXPECT_EQ(uscita.Testo, riga.Byte(3)) << riga.Posto();
  }
}

TEST(RenderingPage, TellsTheRowsOfThePrintFlags) {
  for (const RigaEsempio& riga : TabellaEsempi(Pagina, "rows", 3)) {
    // A second line: a range of one line stands for no flags at all.
    const FlagPerStampe flag = FlagDi(riga.Byte(0) + "\r\n0002,\"Altro;1;N\r\n", 2);
    EXPECT_EQ(flag.Righe().front(), riga.Byte(1)) << riga.Posto();
    EXPECT_EQ(flag.Righe().front().size(), 69U) << riga.Posto();
    EXPECT_EQ(flag.Numero(0), riga.Numero(2)) << riga.Posto();
  }
}

TEST(RenderingPage, TellsWhatBecomesOfStyleMarkers) {
  for (const RigaEsempio& riga : TabellaEsempi(Pagina, "styles", 2)) {
    std::string testo = riga.Byte(0);
    const std::vector<Tratto> tratti = MettiStili(testo);
    EXPECT_EQ(Aspetti(testo, tratti), riga.Byte(1)) << riga.Posto();
  }
}

TEST(RenderingPage, TellsWhatThePreviewShows) {
  for (const RigaEsempio& riga : TabellaEsempi(Pagina, "preview", 2)) {
    const FlagPerStampe flag = FlagDellaPagina();
    const std::string testo = riga.Byte(0);
    const Anteprima anteprima = GeneraAnteprima({.Testi = {testo}, .NumSezioni = 1, .Flag = flag});
    EXPECT_EQ(Aspetti(anteprima.Testo, anteprima.Tratti), riga.Byte(1)) << riga.Posto();
  }
}

}  // namespace
}  // namespace parvik::prova

// The batch program killed while it puts the old content back; and that its calls are seen at all.
#include "guasti/SalvataggioGuasto.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>

namespace parvik::prova {
namespace {

TEST(SalvataggioGuasto, SeesTheStepsOfASaveInTheirOrder) {
  const EsitoSalvataggio esito = SalvataggioGuasto(Via::Accanto).Salva({});
  ASSERT_EQ(esito.Stato, Disco::Nuovo);
  std::vector<std::string> passi;
  std::ranges::copy_if(esito.Chiamate, std::back_inserter(passi), [](const std::string& chiamata) {
    return chiamata.starts_with("write") || chiamata.starts_with("fsync") || chiamata.starts_with("rename") ||
           chiamata.starts_with("close");
  });
  EXPECT_EQ(passi,
            (std::vector<std::string>{"close file", "write new file", "fsync new file", "close new file",
                                      "rename new file", "fsync folder", "close folder", "close new file"}));
}

TEST(SalvataggioGuasto, LeavesOldBytesWholeWhenKilledWhileTheyArePutBack) {
  const SalvataggioGuasto salvataggio(Via::SulPosto);
  const std::vector<std::string> sane = salvataggio.Salva({}).Chiamate;
  const auto scrittura = std::ranges::find(sane, "write file");
  ASSERT_NE(scrittura, sane.end());
  const int prima = static_cast<int>(scrittura - sane.begin()) + 1;
  const Guasto corta = {.Chiamata = prima, .Quale = Guasto::Genere::ScritturaCorta};
  const Guasto pieno = {.Chiamata = prima + 1, .Errore = ENOSPC};
  const EsitoSalvataggio rimesso = salvataggio.Salva({corta, pieno});
  EXPECT_EQ(rimesso.Stato, Disco::Vecchio);
  EXPECT_EQ(rimesso.Programma.Stato, 2);
  bool dallaCopia = false;
  for (int i = pieno.Chiamata + 1; i <= static_cast<int>(rimesso.Chiamate.size()); ++i) {
    const EsitoSalvataggio esito =
        salvataggio.Salva({corta, pieno, {.Chiamata = i, .Quale = Guasto::Genere::Uccisione}});
    EXPECT_EQ(esito.Programma.Stato, -9);
    EXPECT_THAT(esito.Stato, testing::AnyOf(Disco::Vecchio, Disco::Copia)) << i;
    dallaCopia = dallaCopia || esito.Stato == Disco::Copia;
  }
  EXPECT_TRUE(dallaCopia);
}

}  // namespace
}  // namespace parvik::prova

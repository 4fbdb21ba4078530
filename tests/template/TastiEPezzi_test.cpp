// The code that the keys find, beside the pieces of the text.
#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <string>

#include "template/TastiSezione.h"
#include "tokens/Pezzi.h"

namespace parvik::prova {
namespace {

/// The piece that the caret stands in; nullopt between two of them.
std::optional<Pezzo> PezzoIntorno(std::string_view testo, std::size_t cursore) {
  LettorePezzi lettore(testo);
  while (const auto pezzo = lettore.Prossimo()) {
    if (pezzo->Inizio < cursore && cursore < pezzo->Fine) return pezzo;
  }
  return std::nullopt;
}

TEST(TastiEPezzi, PartOnlyBehindASecondOpeningDelimiterInsideACode) {
  EXPECT_TRUE(rc::check([] {
    const auto testo =
        *rc::gen::container<std::string>(rc::gen::elementOf(std::string("\xAB\xBB\xAB\xBB\naP1")));
    const auto cursore = *rc::gen::inRange<std::size_t>(0, testo.size() + 1);
    const auto pezzo = PezzoIntorno(testo, cursore);
    const auto deiTasti = CodiceIntorno(TestoSezione(testo), cursore);
    const bool codice = pezzo && pezzo->Genere == GenerePezzo::Codice;
    RC_ASSERT(deiTasti.has_value() == codice);
    if (!codice) return;
    // The code of the keys ends with the piece, and begins with the nearest delimiter that opens.
    RC_ASSERT(deiTasti->Fine() == pezzo->Fine);
    RC_ASSERT(deiTasti->Inizio == testo.rfind('\xAB', cursore - 1));
  }));
}

}  // namespace
}  // namespace parvik::prova

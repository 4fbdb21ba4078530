// The index agrees with a reading of the text byte by byte, on soups of lone and paired CR and LF, short and
// long lines, runs with and without gaps.
#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <algorithm>

#include "output/TestoAnteprima.h"

namespace parvik::prova {
namespace {

struct RigaLetta {
  std::size_t Inizio = 0;
  std::string Testo;
};

/// The lines and each byte's line, read one byte after the other.
struct Lettura {
  std::vector<RigaLetta> Righe = {{}};
  std::vector<std::size_t> RigaDelByte;

  explicit Lettura(const std::string& testo) {
    for (std::size_t i = 0; i < testo.size(); ++i) {
      RigaDelByte.push_back(Righe.size() - 1);
      if (testo[i] == '\r' && i + 1 < testo.size() && testo[i + 1] == '\n') {
        RigaDelByte.push_back(Righe.size() - 1);
        Righe.push_back({.Inizio = i + 2, .Testo = ""});
        ++i;
      } else {
        Righe.back().Testo += testo[i];
      }
    }
  }
};

rc::Gen<std::string> Testo() {
  const std::vector<std::string> pezzi = {
      "\r\n", "\r\n", "\r\n", "\r", "\n", "a", "Totale", std::string(700, 'x'), std::string(5000, 'y')};
  return rc::gen::map(rc::gen::container<std::vector<std::string>>(rc::gen::elementOf(pezzi)),
                      [](const std::vector<std::string>& scelti) {
                        std::string testo;
                        for (const std::string& pezzo : scelti) testo += pezzo;
                        return testo;
                      });
}

/// Runs in order inside a text of that length, some with a gap in front; the last may leave an end uncovered.
std::vector<Tratto> TrattiPer(std::size_t lunghezza) {
  std::vector<Tratto> tratti;
  std::size_t p = 0;
  const std::size_t quanti = *rc::gen::inRange<std::size_t>(0, 200);
  for (std::size_t i = 0; i < quanti && p < lunghezza; ++i) {
    p += *rc::gen::weightedElement<std::size_t>({{6, 0}, {1, 1}, {1, 30}});
    if (p >= lunghezza) break;
    const std::size_t quanto = std::min(*rc::gen::inRange<std::size_t>(1, 60), lunghezza - p);
    tratti.push_back({p, quanto, AspettoDiIndice(*rc::gen::inRange<std::size_t>(0, NumAspetti))});
    p += quanto;
  }
  return tratti;
}

std::vector<Aspetto> PerByte(std::size_t lunghezza, const std::vector<Tratto>& tratti) {
  std::vector<Aspetto> aspetti(lunghezza);
  for (const Tratto& tratto : tratti) {
    for (std::size_t i = 0; i < tratto.Lunghezza; ++i) aspetti[tratto.Inizio + i] = tratto.Come;
  }
  return aspetti;
}

TEST(ProprietaTestoAnteprima, LinesAreThoseReadByteByByte) {
  EXPECT_TRUE(rc::check([] {
    const std::string byte = *Testo();
    const TestoAnteprima testo({.Testo = byte, .Tratti = {}});
    const Lettura lettura(byte);
    RC_ASSERT(testo.NumRighe() == lettura.Righe.size());
    for (std::size_t i = 0; i < lettura.Righe.size(); ++i) {
      const RigaLetta& riga = lettura.Righe[i];
      RC_ASSERT(testo.Riga(i) == riga.Testo);
      RC_ASSERT(testo.InizioRiga(i) == riga.Inizio);
      RC_ASSERT(testo.TermineRiga(i) == riga.Inizio + riga.Testo.size());
    }
    for (std::size_t i = 0; i < byte.size(); ++i) RC_ASSERT(testo.RigaDi(i) == lettura.RigaDelByte[i]);
    RC_ASSERT(testo.RigaDi(byte.size()) == lettura.Righe.size() - 1);
  }));
}

TEST(ProprietaTestoAnteprima, LooksAreThoseOfEachByte) {
  EXPECT_TRUE(rc::check([] {
    const std::string byte = *Testo();
    const std::vector<Tratto> tratti = TrattiPer(byte.size());
    const TestoAnteprima testo({.Testo = byte, .Tratti = tratti});
    const std::vector<Aspetto> aspetti = PerByte(byte.size(), tratti);
    PerAspetto<std::size_t> conteggio = {};
    for (std::size_t i = 0; i < byte.size(); ++i) {
      RC_ASSERT(testo.AspettoDi(i) == aspetti[i]);
      RC_ASSERT(testo.Conta(i) == conteggio);
      ++conteggio[IndiceDi(aspetti[i])];
    }
    RC_ASSERT(testo.Conta(byte.size()) == conteggio);
    RC_ASSERT(testo.Conta(byte.size() + 1) == conteggio);
  }));
}

TEST(ProprietaTestoAnteprima, TheWidestLineIsTheWidestOfAllLines) {
  EXPECT_TRUE(rc::check([] {
    const std::string byte = *Testo();
    const std::vector<Tratto> tratti = TrattiPer(byte.size());
    const TestoAnteprima testo({.Testo = byte, .Tratti = tratti});
    const std::vector<Aspetto> aspetti = PerByte(byte.size(), tratti);
    PerAspetto<double> larghezze = {};
    for (std::size_t i = 0; i < NumAspetti; ++i) larghezze[i] = static_cast<double>(i + 3);
    double massima = 0;
    for (const RigaLetta& riga : Lettura(byte).Righe) {
      double larghezza = 0;
      for (std::size_t i = 0; i < riga.Testo.size(); ++i)
        larghezza += larghezze[IndiceDi(aspetti[riga.Inizio + i])];
      massima = std::max(massima, larghezza);
    }
    RC_ASSERT(testo.LarghezzaMassima(larghezze) == massima);
  }));
}

TEST(ProprietaTestoAnteprima, RunsOfAPartAreThoseThatReachIntoIt) {
  EXPECT_TRUE(rc::check([] {
    const std::string byte = *Testo();
    const std::vector<Tratto> tratti = TrattiPer(byte.size());
    const TestoAnteprima testo({.Testo = byte, .Tratti = tratti});
    const auto da = *rc::gen::inRange<std::size_t>(0, byte.size() + 2);
    const auto a = *rc::gen::inRange<std::size_t>(da, byte.size() + 3);
    std::vector<Tratto> attesi;
    std::ranges::copy_if(tratti, std::back_inserter(attesi), [da, a](const Tratto& tratto) {
      return da < a && tratto.Inizio < a && tratto.Inizio + tratto.Lunghezza > da;
    });
    const auto trovati = testo.TrattiIn(da, a);
    RC_ASSERT(std::vector<Tratto>(trovati.begin(), trovati.end()) == attesi);
  }));
}

}  // namespace
}  // namespace parvik::prova

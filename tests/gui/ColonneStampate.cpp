#include "ColonneStampate.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "common/qtTesto.h"

namespace parvik::prova {
namespace {

constexpr double Em = 1229.0 / 2048;  // how wide Liberation Mono's characters are, in parts of their size
constexpr double Pitch = 10 * Em;     // points
constexpr double Tolleranza = 0.1;    // points

double Colonne(const Aspetto& aspetto) {
  return aspetto.Corpo == CorpoCarattere::Compresso ? 0.8 : 1;
}

struct Carattere {
  QChar Segno;
  double X = 0;       // in columns of the normal size
  double Corpo = 10;  // points
};

struct Riga {
  std::vector<Carattere> Caratteri;  // but blanks
  double Larghezza = 0;              // in columns
};

std::vector<Riga> RigheDi(const TestoAnteprima& testo) {
  std::vector<Riga> righe;
  for (std::size_t r = 0; r < testo.NumRighe(); ++r) {
    Riga riga;
    for (std::size_t byte = testo.InizioRiga(r); byte < testo.TermineRiga(r); ++byte) {
      const Aspetto aspetto = testo.AspettoDi(byte);
      const QChar segno = PerSchermo(testo.Testo().substr(byte, 1)).at(0);
      if (segno != ' ') riga.Caratteri.push_back({segno, riga.Larghezza, Punti(aspetto.Corpo)});
      riga.Larghezza += Colonne(aspetto);
    }
    righe.push_back(riga);
  }
  return righe;
}

/// Every word of the pages in rows from top to bottom, each from left to right.
std::vector<std::vector<Parola>> InRighe(const std::vector<std::vector<Parola>>& pagine, double scala) {
  std::vector<std::vector<Parola>> righe;
  for (std::vector<Parola> parole : pagine) {
    std::ranges::sort(parole, {}, &Parola::Fondo);
    double fondo = -1000;
    for (const Parola& parola : parole) {
      if (parola.Fondo - fondo > 2 * scala) righe.emplace_back();  // sizes in a line differ by less
      fondo = parola.Fondo;
      righe.back().push_back(parola);
    }
  }
  for (std::vector<Parola>& riga : righe) std::ranges::sort(riga, {}, &Parola::X);
  return righe;
}

void Confronta(const Riga& attesa, const std::vector<Parola>& parole, double sinistra, double scala) {
  std::size_t primo = 0;
  for (const Parola& parola : parole) {
    const auto quanti = static_cast<std::size_t>(parola.Testo.size());
    ASSERT_LE(primo + quanti, attesa.Caratteri.size()) << parola.Testo.toStdString();
    for (std::size_t i = 0; i < quanti; ++i) {
      ASSERT_EQ(parola.Testo[static_cast<qsizetype>(i)], attesa.Caratteri[primo + i].Segno)
          << parola.Testo.toStdString();
    }
    const auto x = [&](std::size_t i) { return sinistra + attesa.Caratteri[i].X * Pitch * scala; };
    const std::size_t ultimo = primo + quanti - 1;
    EXPECT_NEAR(parola.X, x(primo), Tolleranza) << parola.Testo.toStdString();
    EXPECT_NEAR(parola.Destra, x(ultimo) + attesa.Caratteri[ultimo].Corpo * Em * scala, Tolleranza)
        << parola.Testo.toStdString();
    primo += quanti;
  }
  EXPECT_EQ(primo, attesa.Caratteri.size());
}

}  // namespace

std::size_t ConfrontaColonne(const PdfStampato& pdf, const TestoAnteprima& testo, const Foglio& foglio) {
  std::vector<Riga> attese = RigheDi(testo);
  const double larghezza = Pitch * std::ranges::max(attese, {}, &Riga::Larghezza).Larghezza;
  const double scala = std::min(1.0, foglio.Larghezza / larghezza);
  EXPECT_GE(scala, 0.5) << "lines would be broken";
  std::erase_if(attese, [](const Riga& riga) { return riga.Caratteri.empty(); });
  const auto trovate = InRighe(pdf.Parole(), scala);
  EXPECT_EQ(trovate.size(), attese.size());
  std::size_t parole = 0;
  for (std::size_t i = 0; i < std::min(trovate.size(), attese.size()); ++i) {
    SCOPED_TRACE("line with characters number " + std::to_string(i + 1));
    Confronta(attese[i], trovate[i], foglio.Sinistra, scala);
    parole += trovate[i].size();
  }
  return parole;
}

}  // namespace parvik::prova

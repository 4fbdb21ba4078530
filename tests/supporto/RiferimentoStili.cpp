#include "supporto/RiferimentoStili.h"

#include <algorithm>
#include <cstddef>

namespace parvik::prova {
namespace {

/// What a rich-text pane offers. Positions count from 0; -1 is "not found".
class Pannello {
 public:
  explicit Pannello(const std::string& testo) : testo_{testo, std::vector<Aspetto>(testo.size())} {}

  int Lunghezza() const { return static_cast<int>(testo_.Testo.size()); }

  int Trova(int da) const {
    for (int i = std::max(da, 0); i + 2 <= Lunghezza(); ++i) {
      if (Caratteri(i, 2) == "S;") return i;
    }
    return -1;
  }

  std::string Caratteri(int da, int quanti) const {
    std::string presi;
    for (int i = da; i < da + quanti && i < Lunghezza(); ++i)
      presi += testo_.Testo[static_cast<std::size_t>(i)];
    return presi;
  }

  void ImpostaStile(int da, int a, std::string stile) {
    for (char& c : stile) c = c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
    for (int i = da; i < a && i < Lunghezza(); ++i)
      Applica(testo_.Aspetti[static_cast<std::size_t>(i)], stile);
  }

  void Togli(int da, int quanti) {
    for (int i = 0; i < quanti && da < Lunghezza(); ++i) {
      testo_.Testo.erase(testo_.Testo.begin() + da);
      testo_.Aspetti.erase(testo_.Aspetti.begin() + da);
    }
  }

  const TestoConAspetti& Contenuto() const { return testo_; }

 private:
  static void Attributi(Aspetto& a, bool grassetto, bool italico, bool sottolineato) {
    a.Grassetto = grassetto;
    a.Italico = italico;
    a.Sottolineato = sottolineato;
  }

  static void Applica(Aspetto& a, const std::string& stile) {
    if (stile == "NO") Attributi(a, false, false, false);
    if (stile == "NO") a.Corpo = CorpoCarattere::Normale;
    if (stile == "GR") Attributi(a, true, false, false);
    if (stile == "CO") Attributi(a, false, false, false);
    if (stile == "CO") a.Corpo = CorpoCarattere::Compresso;
    if (stile == "IT") Attributi(a, false, true, false);
    if (stile == "SO") Attributi(a, false, false, true);
  }

  TestoConAspetti testo_;
};

}  // namespace

TestoConAspetti StiliDiRiferimento(const std::string& testo) {
  Pannello pannello(testo);
  const int primo = pannello.Trova(0);
  // Without any marker the whole text is in the normal style.
  if (primo != 0) pannello.ImpostaStile(0, primo < 0 ? pannello.Lunghezza() : primo, "NO");
  int inizio = 0;
  for (;;) {
    const int p = pannello.Trova(inizio);
    if (p < 0) break;
    const int q = pannello.Trova(p + 1);
    pannello.ImpostaStile(p + 4, q < 0 ? pannello.Lunghezza() : q, pannello.Caratteri(p + 2, 2));
    if (q >= 0) inizio = q - 4;
    pannello.Togli(p, 4);
  }
  return pannello.Contenuto();
}

}  // namespace parvik::prova

#include "supporto/RiferimentoStampa.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace parvik::prova {
namespace {

// The position of the first `cercato` at or after `da`; 0 when there is none.
std::size_t Posizione(const std::string& testo, char cercato, std::size_t da = 1) {
  for (std::size_t i = da; i <= testo.size(); ++i) {
    if (testo[i - 1] == cercato) return i;
  }
  return 0;
}

std::string DaIn(const std::string& testo, std::size_t da) {
  return da > testo.size() ? std::string() : testo.substr(da - 1);
}

std::string Togli(const std::string& testo, std::size_t ultimi) {
  return testo.size() <= ultimi ? std::string() : testo.substr(0, testo.size() - ultimi);
}

bool Occorre(const std::string& testo, char cercato, std::size_t dopo) {
  return Posizione(testo, cercato, dopo + 1) != 0;
}

// Leading spaces, a sign, digits with at most one point; no digit is 0.
double Numero(const std::string& testo) {
  std::string prefisso;
  std::size_t i = 0;
  while (i < testo.size() && testo[i] == ' ') ++i;
  if (i < testo.size() && (testo[i] == '+' || testo[i] == '-')) prefisso += testo[i++];
  bool punto = false;
  while (i < testo.size() && ((testo[i] >= '0' && testo[i] <= '9') || (testo[i] == '.' && !punto))) {
    punto = punto || testo[i] == '.';
    prefisso += testo[i++];
  }
  return std::strtod(prefisso.c_str(), nullptr);  // no digit at all: 0
}

// Half to even; below zero counts as none, and a million is enough for anybody.
std::size_t Lunghezza(const std::string& testo) {
  const double arrotondata = std::nearbyint(Numero(testo));
  if (arrotondata <= 0) return 0;
  return static_cast<std::size_t>(std::min(arrotondata, 1000000.0));
}

std::string ScriviLingua(const std::string& codice) {
  const std::size_t p = Posizione(codice, ';');
  if (p == 0) return std::string(10, '$');
  return std::string(Lunghezza(DaIn(codice, p + 1)), '$');
}

std::string Riempi(const std::string& campione, std::size_t lunghezza, char riempimento, char allineamento) {
  if (campione.size() >= lunghezza) return campione;
  const std::string mancano(lunghezza - campione.size(), riempimento);
  return allineamento == 'R' ? mancano + campione : campione + mancano;
}

std::string ScriviVariabileConFormato(std::string codice, std::size_t p1, std::size_t p2) {
  const std::size_t lunghezza = Lunghezza(codice.substr(p1, p2 - p1 - 1));
  if (Occorre(codice, ';', p2)) codice = Togli(codice, 2);
  const char allineamento = Occorre(codice, 'R', p1) ? 'R' : Occorre(codice, 'L', p1) ? 'L' : 'R';
  const std::size_t apice = Posizione(codice, '"', p1 + 1);
  // A quote that is the last character gives the default fill.
  const char riempimento = apice != 0 && apice < codice.size() ? codice[apice] : ' ';
  if (!Occorre(codice, '0', p2)) return std::string(lunghezza, riempimento);
  const std::size_t virgola = Posizione(codice, ',', p2 + 1);
  if (virgola == 0) {
    return lunghezza < 1 ? std::string() : Riempi("0", lunghezza, riempimento, allineamento);
  }
  const std::size_t d = Lunghezza(DaIn(codice, virgola + 1));
  if (lunghezza < d + 2) return std::string(lunghezza, '#');
  return Riempi("0," + std::string(d, '0'), lunghezza, riempimento, allineamento);
}

std::string ScriviVariabile(std::string codice) {
  const std::size_t p1 = Posizione(codice, ';');
  const std::size_t p2 = p1 == 0 ? 0 : Posizione(codice, ';', p1 + 1);
  if (codice.back() != '#' && p2 > 0) return ScriviVariabileConFormato(codice, p1, p2);
  char riempimento = '$';
  const std::size_t apice = Posizione(codice, '"', p1 + 1);
  if (apice != 0) {
    if (apice < codice.size()) riempimento = codice[apice];
    codice = Togli(codice, 3);
  }
  return std::string(Lunghezza(DaIn(codice, p1 + 1)), riempimento);
}

class Corsa {
 public:
  Corsa(const DatiRiferimento& dati, int tipoStampa) : dati_(dati), tipoStampa_(tipoStampa) {}

  std::string GeneraStampa() {
    statoFlag_ = true;
    for (int s = 0; s <= std::min(dati_.NumSezioni, 3) - 1; ++s) {
      const std::string& testo = dati_.Testi[static_cast<std::size_t>(s)];
      if (testo == "\r\n") continue;
      for (int volta = 0; volta < Volte(s); ++volta) Sezione(testo);
    }
    if (tipoStampa_ == 2 && !uscita_.empty()) uscita_ = uscita_ + "\r\n" + "--- Fine file ---";
    return uscita_;
  }

 private:
  int Volte(int s) const {
    if (s != 1) return 1;
    if (dati_.LineeCorpo <= 0) return 0;
    return static_cast<int>(std::floor(static_cast<double>(dati_.RigheCorpo) / dati_.LineeCorpo));
  }

  void Sezione(const std::string& testo) {
    std::string riga;
    for (std::size_t i = 1; i <= testo.size(); ++i) {
      const char c = testo[i - 1];
      if (c == '\xAB') {
        std::string codice;
        for (++i; i <= testo.size() && testo[i - 1] != '\xBB'; ++i) codice += testo[i - 1];
        if (i > testo.size()) return;  // no closing delimiter: the rest is swallowed
        TrovaVar(codice);
        riga = riga + risultato_;
      } else if (c == '\r') {
        uscita_ = uscita_ + riga + "\r\n";
        riga = "";
        if (i < testo.size() && testo[i] == '\n') ++i;
      } else {
        riga = riga + c;
      }
    }
  }

  void TrovaVar(const std::string& codice) {
    char k = codice.empty() ? ' ' : codice[0];
    if (k == 'V' && codice.substr(1, 2) == "0;") k = 'C';
    if (k != 'F' && !statoFlag_) {
      risultato_ = "";
      statoFlag_ = true;
      return;
    }
    if (k == 'C') risultato_ = DaIn(Togli(codice, 1), 5);
    if (k == 'V') risultato_ = ScriviVariabile(codice);
    if (k == 'F') {
      ImpostaFlag(codice);
      risultato_ = "";
    }
    if (k == 'S') risultato_ = tipoStampa_ == 2 ? codice.substr(0, 4) : "";
    if (k == 'L') risultato_ = ScriviLingua(codice);
    if (k == 'P') risultato_ = DaIn(codice, 2);
  }

  void ImpostaFlag(std::string codice) {
    if (codice.back() == 'S' || codice.back() == 'N') codice = Togli(codice, 1);
    const double numero = Numero(DaIn(codice, 2));
    for (const std::string& riga : dati_.RigheFlag) {
      if (Numero(DaIn(riga, 2)) != numero) continue;
      statoFlag_ = riga.back() == 'V';
      return;
    }
  }

  const DatiRiferimento& dati_;
  int tipoStampa_;
  bool statoFlag_ = true;
  std::string risultato_;  // the caller's result variable
  std::string uscita_;
};

}  // namespace

std::string StampaDiRiferimento(const DatiRiferimento& dati, int tipoStampa) {
  return Corsa(dati, tipoStampa).GeneraStampa();
}

}  // namespace parvik::prova

#include "template/CopiaRighe.h"

#include <algorithm>

#include "common/Delimitatori.h"

namespace parvik {
namespace {

// Texts are gone over in pieces that stay in the nearest cache from the first look at them to the last. The
// loops over a piece look at every byte alike and never leave early: the compiler makes them take many bytes
// at a time.
constexpr std::size_t Pezzo = 8UL * 1024UL;

using Byte = unsigned char;

/// All bits or none: what the compiler needs to see in order to compare many bytes at a time.
constexpr Byte Uguale(char c, char cercato) {
  return static_cast<Byte>(-static_cast<int>(c == cercato));
}

/// By exclusive or with what tells the old byte from the new one.
template <char Apertura, char NuovaApertura, char Chiusura, char NuovaChiusura>
void Scambia(std::span<char> testo) {
  constexpr auto Aprendo = static_cast<Byte>(Apertura ^ NuovaApertura);
  constexpr auto Chiudendo = static_cast<Byte>(Chiusura ^ NuovaChiusura);
  for (char& c : testo) {
    const auto byte = static_cast<Byte>(c);
    c = static_cast<char>(byte ^ (Uguale(c, Apertura) & Aprendo) ^ (Uguale(c, Chiusura) & Chiudendo));
  }
}

/// Whether in the piece a CR stands without its LF; one at the very end does.
bool HaCrSolo(std::string_view pezzo) {
  const char* const byte = pezzo.data();
  const std::size_t coppie = pezzo.size() - 1;
  Byte soli = Uguale(pezzo.back(), '\r');
  for (std::size_t i = 0; i < coppie; ++i) {
    soli |= static_cast<Byte>(Uguale(byte[i], '\r') & ~Uguale(byte[i + 1], '\n'));
  }
  return soli != 0;
}

/// The piece that begins at `posto`. A CR at its end comes with the next one, as what follows it does.
std::string_view PezzoDa(std::string_view testo, std::size_t posto) {
  std::string_view pezzo = testo.substr(posto, Pezzo);
  if (pezzo.size() > 1 && pezzo.back() == '\r') pezzo.remove_suffix(1);
  return pezzo;
}

bool HaCoppia(std::string_view pezzo, char primo, char secondo) {
  const char* const byte = pezzo.data();
  const std::size_t coppie = pezzo.size() - 1;
  Byte trovate = 0;
  for (std::size_t i = 0; i < coppie; ++i) {
    trovate |= static_cast<Byte>(Uguale(byte[i], primo) & Uguale(byte[i + 1], secondo));
  }
  return trovate != 0;
}

/// What belongs to a line end beside its CR.
enum class DopoCr { SoloLf, OgniByte };

/// Adds the bytes of [da, a) with CR LF for every line end. Where the text goes on: a line end that begins
/// there may reach beyond `a`.
std::size_t AggiungiRigaPerRiga(std::string_view testo, std::size_t da, std::size_t a, DopoCr dopoCr,
                                std::string& uscita) {
  while (da < a) {
    const std::size_t fine = std::min(testo.find('\r', da), a);
    uscita.append(testo, da, fine - da);
    if (fine == a) return a;
    uscita.append(FineRiga);
    da = fine + 1;
    if (da < testo.size() && (dopoCr == DopoCr::OgniByte || testo[da] == '\n')) ++da;
  }
  return da;
}

void Aggiungi(std::string_view testo, DopoCr dopoCr, void (*scambia)(std::span<char>), std::string& uscita) {
  for (std::size_t posto = 0; posto < testo.size();) {
    const std::size_t inizio = uscita.size();
    const std::string_view pezzo = PezzoDa(testo, posto);
    if (HaCrSolo(pezzo)) {
      posto = AggiungiRigaPerRiga(testo, posto, posto + pezzo.size(), dopoCr, uscita);
    } else {
      uscita.append(pezzo);
      posto += pezzo.size();
    }
    scambia(std::span(uscita).subspan(inizio));
  }
}

}  // namespace

void DelimitatoriVersoEditor(std::span<char> testo) {
  Scambia<DelimFileApertura, DelimApertura, DelimFileChiusura, DelimChiusura>(testo);
}

void DelimitatoriVersoFile(std::span<char> testo) {
  Scambia<DelimApertura, DelimFileApertura, DelimChiusura, DelimFileChiusura>(testo);
}

void AggiungiDaFile(std::string_view righe, std::string& sezione) {
  sezione.reserve(sezione.size() + righe.size() + FineRiga.size());
  Aggiungi(righe, DopoCr::SoloLf, DelimitatoriVersoEditor, sezione);
  const bool finita = righe.ends_with('\r') || righe.ends_with(FineRiga);
  if (!righe.empty() && !finita) sezione.append(FineRiga);
}

bool RendiRighe(std::span<char> righe) {
  const std::string_view testo(righe.data(), righe.size());
  for (std::size_t posto = 0; posto < testo.size();) {
    const std::string_view pezzo = PezzoDa(testo, posto);
    if (HaCrSolo(pezzo)) return false;  // what was exchanged stays so when it is exchanged again
    DelimitatoriVersoEditor(righe.subspan(posto, pezzo.size()));
    posto += pezzo.size();
  }
  return true;
}

std::size_t AggiungiVersoFile(std::string_view sezione, std::string& file) {
  const std::size_t inizio = file.size();
  Aggiungi(sezione, DopoCr::OgniByte, DelimitatoriVersoFile, file);
  const std::size_t ultima = std::string_view(file).substr(inizio).rfind('\r');
  return ultima == std::string_view::npos ? inizio : inizio + ultima + FineRiga.size();
}

std::size_t TrovaCoppia(std::string_view testo, std::string_view coppia, std::size_t da) {
  for (; da < testo.size(); da += Pezzo) {
    const std::string_view pezzo = testo.substr(da, Pezzo + 1);  // one more: it may begin with the last byte
    if (HaCoppia(pezzo, coppia[0], coppia[1])) return da + pezzo.find(coppia);
  }
  return std::string_view::npos;
}

}  // namespace parvik

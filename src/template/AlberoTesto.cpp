#include "template/AlberoTesto.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <span>
#include <utility>
#include <vector>

#include "common/Precondizione.h"

namespace parvik {

/// A block of bytes, or parts that all have the same height.
struct NodoTesto {
  std::string Byte;
  std::vector<RamoTesto> Rami;  // of a block none

  bool Blocco() const { return Rami.empty(); }
};

namespace {

using ElencoRami = std::vector<RamoTesto>;

constexpr std::size_t MassimoBlocco = 512;  // bytes
constexpr std::size_t MassimoRami = 16;
constexpr const char* NelTesto = "the place lies in the text";

MisuraTesto Misura(std::string_view byte) {
  MisuraTesto misura{.Byte = byte.size()};
  for (std::size_t i = 0; i < NumSegni; ++i)
    misura.Segni[i] = static_cast<std::size_t>(std::ranges::count(byte, ByteDi(static_cast<Segno>(i))));
  return misura;
}

RamoTesto Blocco(std::string byte, const MisuraTesto& misura) {
  return {.Nodo = std::make_shared<const NodoTesto>(NodoTesto{.Byte = std::move(byte), .Rami = {}}),
          .Misura = misura};
}
RamoTesto Blocco(std::string_view byte) {
  return Blocco(std::string(byte), Misura(byte));
}

RamoTesto Nodo(std::span<const RamoTesto> rami) {
  MisuraTesto misura;
  for (const RamoTesto& ramo : rami) misura += ramo.Misura;
  return {
      .Nodo = std::make_shared<const NodoTesto>(NodoTesto{.Byte = {}, .Rami = {rami.begin(), rami.end()}}),
      .Misura = misura};
}

/// Calls `fai` with the beginning and the end of each of the parts, all about as long, that `quanti` have to
/// be cut into to be none longer than `massimo`.
template <class Azione>
void PerParti(std::size_t quanti, std::size_t massimo, Azione fai) {
  const std::size_t parti = (quanti + massimo - 1) / massimo;
  for (std::size_t i = 0; i < parti; ++i) fai(i * quanti / parti, (i + 1) * quanti / parti);
}

ElencoRami Blocchi(std::string_view byte) {
  ElencoRami blocchi;
  PerParti(byte.size(), MassimoBlocco,
           [&](std::size_t da, std::size_t a) { blocchi.push_back(Blocco(byte.substr(da, a - da))); });
  return blocchi;
}

/// One height up.
ElencoRami Nodi(const ElencoRami& rami) {
  ElencoRami nodi;
  PerParti(rami.size(), MassimoRami,
           [&](std::size_t da, std::size_t a) { nodi.push_back(Nodo(std::span(rami).subspan(da, a - da))); });
  return nodi;
}

/// The part of a node in which a place lies, and where it begins. Between two parts it is the left one's.
struct Ramo {
  std::size_t Quale = 0;
  std::size_t Inizio = 0;
};

Ramo RamoDi(const NodoTesto& nodo, std::size_t posto, Ramo da = {}) {
  for (; posto > da.Inizio + nodo.Rami[da.Quale].Misura.Byte; ++da.Quale)
    da.Inizio += nodo.Rami[da.Quale].Misura.Byte;
  return da;
}

/// Two neighbours of the same height as one, where they are small; nullopt where they are not.
std::optional<RamoTesto> Unione(const RamoTesto& uno, const RamoTesto& altro) {
  const NodoTesto& prima = *uno.Nodo;
  const NodoTesto& dopo = *altro.Nodo;
  if (prima.Blocco()) {
    if (prima.Byte.size() + dopo.Byte.size() > MassimoBlocco / 2) return std::nullopt;
    return Blocco(prima.Byte + dopo.Byte);
  }
  if (prima.Rami.size() + dopo.Rami.size() > MassimoRami / 2) return std::nullopt;
  ElencoRami rami = prima.Rami;
  std::ranges::copy(dopo.Rami, std::back_inserter(rami));
  return Nodo(rami);
}

/// Adds a part, or lets the last one take it in.
void Aggiungi(ElencoRami& rami, const RamoTesto& ramo) {
  const auto unione = rami.empty() ? std::nullopt : Unione(rami.back(), ramo);
  if (unione) {
    rami.back() = *unione;
  } else {
    rami.push_back(ramo);
  }
}

/// A block after a change, or several. Only what goes and what comes is measured, where it stays one.
ElencoRami SostituisciInBlocco(const RamoTesto& blocco, std::size_t da, std::size_t a,
                               std::string_view messi) {
  const std::string_view byte = blocco.Nodo->Byte;
  const std::size_t lungo = byte.size() - (a - da) + messi.size();
  std::string nuovi;
  nuovi.reserve(lungo);
  nuovi.append(byte.substr(0, da)).append(messi).append(byte.substr(a));
  if (lungo == 0 || lungo > MassimoBlocco) return Blocchi(nuovi);
  MisuraTesto misura = blocco.Misura;
  misura += Misura(messi);
  misura -= Misura(byte.substr(da, a - da));
  return {Blocco(std::move(nuovi), misura)};
}

/// What comes in the place of a part, of the same height: as many parts as it takes, or none.
ElencoRami Sostituisci(const RamoTesto& ramo, std::size_t da, std::size_t a, std::string_view messi) {
  const NodoTesto& nodo = *ramo.Nodo;
  if (nodo.Blocco()) return SostituisciInBlocco(ramo, da, a, messi);
  const Ramo primo = RamoDi(nodo, da);
  const Ramo ultimo = RamoDi(nodo, a, primo);
  const RamoTesto& ramoPrimo = nodo.Rami[primo.Quale];
  const bool uno = primo.Quale == ultimo.Quale;
  ElencoRami nuovi =
      Sostituisci(ramoPrimo, da - primo.Inizio, uno ? a - primo.Inizio : ramoPrimo.Misura.Byte, messi);
  if (!uno) {
    const ElencoRami ultimi = Sostituisci(nodo.Rami[ultimo.Quale], 0, a - ultimo.Inizio, {});
    std::ranges::copy(ultimi, std::back_inserter(nuovi));
  }
  ElencoRami rami(nodo.Rami.begin(), nodo.Rami.begin() + static_cast<std::ptrdiff_t>(primo.Quale));
  for (const RamoTesto& nuovo : nuovi) Aggiungi(rami, nuovo);
  std::span<const RamoTesto> resto = std::span(nodo.Rami).subspan(ultimo.Quale + 1);
  if (!resto.empty()) {
    Aggiungi(rami, resto.front());
    std::ranges::copy(resto.subspan(1), std::back_inserter(rami));
  }
  return Nodi(rami);
}

/// The whole tree over parts of the same height.
RamoTesto Radice(ElencoRami rami) {
  if (rami.empty()) return Blocco({});
  while (rami.size() > 1) rami = Nodi(rami);
  RamoTesto radice = rami.front();
  while (radice.Nodo->Rami.size() == 1) radice = RamoTesto(radice.Nodo->Rami.front());
  return radice;
}

bool Percorri(const NodoTesto& nodo, std::size_t da, std::size_t a,
              const std::function<bool(std::string_view)>& visitatore) {
  if (nodo.Blocco()) return visitatore(std::string_view(nodo.Byte).substr(da, a - da));
  for (Ramo ramo = RamoDi(nodo, da); ramo.Quale < nodo.Rami.size() && ramo.Inizio < a;) {
    const RamoTesto& questo = nodo.Rami[ramo.Quale++];
    const std::size_t inizio = std::max(da, ramo.Inizio) - ramo.Inizio;
    const std::size_t fine = std::min(a - ramo.Inizio, questo.Misura.Byte);
    if (inizio < fine && !Percorri(*questo.Nodo, inizio, fine, visitatore)) return false;
    ramo.Inizio += questo.Misura.Byte;
  }
  return true;
}

}  // namespace

MisuraTesto& MisuraTesto::operator+=(const MisuraTesto& altra) {
  Byte += altra.Byte;
  std::ranges::transform(Segni, altra.Segni, Segni.begin(), std::plus());
  return *this;
}

MisuraTesto& MisuraTesto::operator-=(const MisuraTesto& altra) {
  Byte -= altra.Byte;
  std::ranges::transform(Segni, altra.Segni, Segni.begin(), std::minus());
  return *this;
}

AlberoTesto::AlberoTesto(std::string_view byte) : radice_(Radice(Blocchi(byte))) {}

char AlberoTesto::operator[](std::size_t posto) const {
  PARVIK_ESIGE(posto < Dimensione(), NelTesto);
  const NodoTesto* nodo = radice_.Nodo.get();
  while (!nodo->Blocco()) {
    const Ramo ramo = RamoDi(*nodo, posto + 1);
    posto -= ramo.Inizio;
    nodo = nodo->Rami[ramo.Quale].Nodo.get();
  }
  return nodo->Byte[posto];
}

void AlberoTesto::Visita(std::size_t da, std::size_t a,
                         const std::function<bool(std::string_view)>& visitatore) const {
  PARVIK_ESIGE(da <= a && a <= Dimensione(), NelTesto);
  if (da < a) Percorri(*radice_.Nodo, da, a, visitatore);
}

std::string AlberoTesto::Byte(std::size_t da, std::size_t a) const {
  std::string byte;
  byte.reserve(a - da);
  Visita(da, a, [&byte](std::string_view pezzo) {
    byte.append(pezzo);
    return true;
  });
  return byte;
}

std::size_t AlberoTesto::Conta(Segno segno, std::size_t posto) const {
  PARVIK_ESIGE(posto <= Dimensione(), NelTesto);
  std::size_t quanti = 0;
  const NodoTesto* nodo = radice_.Nodo.get();
  while (!nodo->Blocco()) {
    const Ramo ramo = RamoDi(*nodo, posto);
    for (std::size_t i = 0; i < ramo.Quale; ++i) quanti += nodo->Rami[i].Misura.Di(segno);
    posto -= ramo.Inizio;
    nodo = nodo->Rami[ramo.Quale].Nodo.get();
  }
  const std::string_view davanti = std::string_view(nodo->Byte).substr(0, posto);
  return quanti + static_cast<std::size_t>(std::ranges::count(davanti, ByteDi(segno)));
}

std::size_t AlberoTesto::Trova(Segno segno, std::size_t quale) const {
  if (quale >= Misura().Di(segno)) return Dimensione();
  std::size_t inizio = 0;
  const NodoTesto* nodo = radice_.Nodo.get();
  while (!nodo->Blocco()) {
    auto ramo = nodo->Rami.begin();
    for (; quale >= ramo->Misura.Di(segno); ++ramo) {
      quale -= ramo->Misura.Di(segno);
      inizio += ramo->Misura.Byte;
    }
    nodo = ramo->Nodo.get();
  }
  std::size_t posto = nodo->Byte.find(ByteDi(segno));
  for (; quale > 0; --quale) posto = nodo->Byte.find(ByteDi(segno), posto + 1);
  return inizio + posto;
}

AlberoTesto AlberoTesto::Con(std::size_t da, std::size_t a, std::string_view messi) const {
  PARVIK_ESIGE(da <= a && a <= Dimensione(), NelTesto);
  return AlberoTesto(Radice(Sostituisci(radice_, da, a, messi)));
}

}  // namespace parvik

// What the active section offers to be inserted: the catalogue's fields, the styles, and what else the
// template uses (docs/pannello-campi.md).
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "catalogue/Catalogo.h"
#include "editor/UsiModello.h"
#include "template/Documento.h"
#include "tokens/Codice.h"
#include "tokens/FiltraVoci.h"
#include "verifica/VociTipo.h"

namespace parvik {

struct VoceInseribile {
  GruppoVoci Gruppo = GruppoVoci::Variabili;
  std::optional<int> Numero = {};
  std::string Descrizione;  // Windows-1252, as what follows
  std::string Nuda;         // the same in bare letters
  std::string Codice;       // what its dialog gives when it opens on it and OK is chosen; "" of a new entry
  UsiVoce Usi = {};

  std::size_t Volte() const { return Usi[0] + Usi[1] + Usi[2]; }
  bool Nuova() const { return Codice.empty(); }
  bool operator==(const VoceInseribile&) const = default;
};

/// What a group is called. UTF-8.
std::string_view TitoloGruppo(GruppoVoci gruppo);
/// The kind of the codes of a group.
TipoCodice GenereDi(GruppoVoci gruppo);
/// The number as its codes write it, "V105"; "" without one.
std::string NumeroScritto(const VoceInseribile& voce);
/// What it is, and how often it is used, in a phrase. UTF-8.
std::string DettaInFrase(const VoceInseribile& voce);
/// Whether what is chosen is its dialog, for there is something to be told first: what the catalogue says
/// nothing of.
bool ConMaschera(const VoceInseribile& voce);

/// Entries of one group, by their place among those that were filtered.
struct GruppoFiltrato {
  GruppoVoci Quale = GruppoVoci::Variabili;
  std::vector<std::size_t> Voci;

  bool operator==(const GruppoFiltrato&) const = default;
};

/// Those that answer to words that are looked for (Windows-1252), the best first, in their groups; the group
/// with the best one comes first. What is equally good stays in its order.
std::vector<GruppoFiltrato> Filtra(std::span<const VoceInseribile> voci, std::string_view cercato);

class VociInseribili final : private AscoltatoreDocumento {
 public:
  /// Both must outlive it. Costs nothing before it is asked.
  VociInseribili(Documento& documento, const Catalogo& catalogo);

  /// What a section of that type, one of the catalogue's, offers, with what was counted last.
  const std::vector<VoceInseribile>& Di(const TipoDoc& tipo, Sezione sezione);
  /// All that is known of one of them: lines of UTF-8.
  std::string Detta(const VoceInseribile& voce) const;

  // --- counts: each has a number, and only the one that began last counts

  /// Whether something has changed since the count that is told or under way.
  bool DaContare(const TipoDoc& tipo) const;
  /// Counts at once where that is quick, or gives the count that there is to make, whose result is to be
  /// handed in.
  std::optional<LavoroUsi> Conta(const TipoDoc& tipo);
  void Consegna(LavoroUsi::Fatto fatto);

 private:
  struct Versione {
    std::uint64_t Testi = 0;
    int Tipo = 0;

    bool operator==(const Versione&) const = default;
  };
  Versione Adesso(const TipoDoc& tipo) const { return {.Testi = modifiche_, .Tipo = tipo.Indice}; }
  void AggiungiCatalogo();
  void AggiungiStili();
  void AggiungiUsate(GruppoVoci gruppo);
  void Aggiungi(VoceInseribile voce, int numero);
  std::string SezioniDi(const VoceInseribile& voce) const;
  void Modificata(const CambiamentoTesto& /*cambiamento*/) override { ++modifiche_; }
  void Sostituita(Sezione /*sezione*/) override { ++modifiche_; }

  const Documento& documento_;
  const Catalogo& catalogo_;
  std::optional<VociTipo> offerte_;  // of the type that was asked for last
  Sezione sezione_ = Sezione::Testata;
  std::vector<VoceInseribile> voci_;  // empty: to be made anew
  UsiModello usi_;
  std::uint64_t modifiche_ = 0;  // of the texts
  LavoroUsi::Numero numero_ = 0;
  std::optional<Versione> contata_;
  std::optional<Versione> inCorso_;
  Documento::Ascolto ascolto_;
};

}  // namespace parvik

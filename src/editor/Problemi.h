// What is wrong with the open template, while somebody wants to see it: what the last check has found, and
// where that is now (docs/verifica.md).
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "catalogue/Catalogo.h"
#include "template/Documento.h"
#include "template/Spostamenti.h"
#include "verifica/Verifica.h"

namespace parvik {

/// What a page may hold, as its user says; nothing is checked of what is not said.
struct PaginaVerifica {
  std::optional<std::size_t> Larghezza = {};  // characters of a line
  std::optional<std::size_t> Righe = {};      // lines of a page
  bool Cornici = false;                       // frames have to close

  bool operator==(const PaginaVerifica&) const = default;
};

/// A check, to be made on any thread.
class LavoroVerifica {
 public:
  using Numero = std::uint64_t;

  /// The catalogue and the type must outlive it.
  LavoroVerifica(Numero numero, const Catalogo& catalogo, const TipoDoc& tipo, const Documento& documento,
                 const PaginaVerifica& pagina);

  struct Trovato {
    std::vector<Rilievo> Rilievi;
    std::string Avviso;  // of the whole template, UTF-8; "" where there is nothing to say of it
  };
  struct Fatto {
    LavoroVerifica::Numero Numero = 0;
    std::optional<Trovato> Trovati;  // nullopt where memory was exhausted, or it was given up
  };
  Fatto Esegui() const;

  /// In bytes.
  std::size_t Dimensione() const;

 private:
  Numero numero_;
  const Catalogo& catalogo_;
  const TipoDoc& tipo_;
  std::array<TestoSezione, MaxSezioni> testi_;
  ImpostazioniCorpo corpo_;
  PaginaVerifica pagina_;
};

/// A part of a section that something is wrong with.
struct SegnoProblema {
  Selezione Posto;
  std::size_t Quale = 0;  // of the findings
};

class Problemi final : private AscoltatoreDocumento {
 public:
  /// Both must outlive it.
  Problemi(Documento& documento, const Catalogo& catalogo);

  const PaginaVerifica& Pagina() const { return pagina_; }
  void ImpostaPagina(const PaginaVerifica& pagina) { pagina_ = pagina; }

  // --- checks: each has a number, and only the one that began last counts

  /// Whether something has changed since the check that is told or under way.
  bool DaRifare(const TipoDoc& tipo) const;
  /// Checks the document as it stands: at once where that is quick, or else the check that there is to make,
  /// whose result is to be handed in.
  std::optional<LavoroVerifica> Rinnova(const TipoDoc& tipo);
  void Consegna(LavoroVerifica::Fatto fatto);
  /// Nothing is told, and nothing kept.
  void Dimentica();

  // --- what was found

  /// Whether there was a check.
  bool Verificato() const { return mostrata_.has_value(); }
  const std::vector<Rilievo>& Trovati() const { return trovati_.Rilievi; }
  const std::string& Avviso() const { return trovati_.Avviso; }
  std::size_t Quanti(Livello livello) const;
  /// Where a finding is now; nullopt when it has no place in a section, or an edit has been there since.
  std::optional<Selezione> Posto(std::size_t quale) const;
  /// Those that share a byte with a part of a section, in their order.
  std::vector<SegnoProblema> In(Sezione sezione, const Selezione& parte) const;

 private:
  /// All that makes one check come out other than another.
  struct Versione {
    std::uint64_t Testi = 0;
    int Tipo = 0;
    ImpostazioniCorpo Corpo = {};
    PaginaVerifica Pagina = {};

    bool operator==(const Versione&) const = default;
  };
  struct Corsa {
    LavoroVerifica::Numero Numero = 0;
    Versione Di;
    std::array<Spostamenti, MaxSezioni> Da;  // since it took what it reads
  };

  Versione Adesso(const TipoDoc& tipo) const;
  void MettiSegni();
  void Modificata(const CambiamentoTesto& cambiamento) override;
  void Sostituita(Sezione sezione) override;

  const Documento& documento_;
  const Catalogo& catalogo_;
  PaginaVerifica pagina_;
  std::uint64_t modifiche_ = 0;  // of the texts
  LavoroVerifica::Numero numero_ = 0;
  std::optional<Corsa> nuova_;  // under way
  std::optional<Versione> mostrata_;
  LavoroVerifica::Trovato trovati_;
  std::array<std::vector<SegnoProblema>, MaxSezioni> segni_;  // by place, where they are now
  Documento::Ascolto ascolto_;
};

}  // namespace parvik

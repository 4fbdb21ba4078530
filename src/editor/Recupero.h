// When a template that is not saved is to be kept against the program's sudden end (docs/recupero.md).
#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>

#include "editor/CopiaRecupero.h"
#include "template/Documento.h"

namespace parvik {

/// The document at one moment. A value that costs next to nothing: texts are laid out when the copy is made,
/// on whatever thread.
struct IstantaneaRecupero {
  int Tipo = 0;
  std::filesystem::path NomeFile;
  ImpostazioniCorpo Corpo;
  std::optional<Provenienza> Origine;
  std::array<TestoSezione, MaxSezioni> Testi;

  CopiaRecupero Copia(std::int64_t quando) const;
};

class Recupero : private AscoltatoreDocumento {
 public:
  /// `documento` must outlive this.
  explicit Recupero(Documento& documento) : documento_(documento), ascolto_(documento.Ascolta(*this)) {}

  /// Whether there is anything to lose: a template of a type (by its number), modified, while things are kept
  /// from one session to the next.
  bool Serve(bool ricorda, const std::optional<int>& tipo) const {
    return ricorda && tipo && documento_.Stato().Modificato;
  }
  /// Whether it is another one than was taken last. Asked only while there is something to lose.
  bool DaScrivere() const;
  IstantaneaRecupero Prendi(int tipo);
  /// What was taken did not get to the disk, or is not there any more.
  void Perduta() { presa_.reset(); }

 private:
  /// What is not told by the texts.
  struct Contorno {
    std::filesystem::path NomeFile;
    ImpostazioniCorpo Corpo;
    std::shared_ptr<const std::string> Origine;

    bool operator==(const Contorno&) const = default;
  };
  Contorno ContornoOra() const;

  void Modificata(const CambiamentoTesto& /*cambiamento*/) override { cambiata_ = true; }
  void Sostituita(Sezione /*sezione*/) override { cambiata_ = true; }

  Documento& documento_;
  bool cambiata_ = false;          // a text, since it was taken
  std::optional<Contorno> presa_;  // nullopt: nothing was
  Documento::Ascolto ascolto_;
};

}  // namespace parvik

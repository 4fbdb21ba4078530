// The editor's state and commands, without a screen: what the main window shows is all said here.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>

#include "app/Installazione.h"
#include "app/Menu.h"
#include "catalogue/Catalogo.h"
#include "common/Interlocutore.h"
#include "output/FlagPerStampe.h"
#include "output/GeneraStampa.h"
#include "template/ComandiFile.h"
#include "template/Documento.h"
#include "template/Sezioni.h"

namespace parvik {

/// The main window as its commands see it.
class Vista : public Sezioni {
 public:
  /// The editor's state has changed: caption, menus, what is visible, layout.
  virtual void Aggiorna() = 0;
  virtual void MostraAnteprima(const Anteprima& anteprima) = 0;
};

class Editore final : private Contorno {
 public:
  /// Starts in the state without a document type. `vista` and `interlocutore` must outlive the editor;
  /// `vista` is first used when a command runs.
  Editore(Installazione installazione, Catalogo catalogo, Vista& vista, Interlocutore& interlocutore);

  // --- what there is to show

  const std::string& Titolo() const { return titolo_; }  // UTF-8
  bool TipoScelto() const { return tipoDocCorrente_ != NessunTipo; }
  bool TreSezioni() const { return TipoScelto() && HaTreSezioni(Tipo().NumSezioni); }
  /// The check mark of the preview; it stays as it was when the document type is given up.
  bool AnteSpuntata() const { return anteSpuntata_; }
  bool AnteVisibile() const { return TipoScelto() && anteSpuntata_; }
  StatoMenu PerMenu() const { return {.TipoScelto = TipoScelto(), .TreSezioni = TreSezioni()}; }
  const Catalogo& Campi() const { return catalogo_; }
  const Installazione& Dove() const { return installazione_; }
  const Documento& Modello() const { return documento_; }
  FlagPerStampe& Flag() { return flag_; }

  // --- what the user does

  /// A document type was chosen from the list, by its slot.
  void ScegliTipo(std::size_t slot);
  void Nuovo();
  void Apri();
  void Salva();
  void SalvaConNome();
  /// The menu entry of the preview: turns it on, which renders, or off.
  void CommutaAnteprima();
  /// Whether the window may close. Asks when the template is modified.
  bool PuoChiudere();
  /// A section was edited, or a key was pressed in it.
  void SegnaModificato() { documento_.Modificato = true; }

 private:
  static constexpr std::uint16_t NessunTipo = 999;

  const TipoDoc& Tipo() const { return catalogo_.TipiDoc()[tipoDocCorrente_]; }
  void ApplicaTipoDoc();
  void CaricaFlagStampe();
  void Genera();

  void ImpostaTitolo(std::string titolo) override;
  void SpegniAnteprima() override;
  void AzzeraFlagStampe() override;
  void TornaSenzaTipo() override;

  Installazione installazione_;
  Catalogo catalogo_;
  Vista& vista_;
  Interlocutore& interlocutore_;
  Documento documento_;
  FlagPerStampe flag_;
  ComandiFile comandi_;
  std::string titolo_;
  std::size_t tipoDocCorrente_ = NessunTipo;
  bool anteSpuntata_ = false;
};

}  // namespace parvik

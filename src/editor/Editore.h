// The editor's state and commands, without a screen: what the main window shows is all said here.
#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "catalogue/Catalogo.h"
#include "common/Interlocutore.h"
#include "editor/AnteprimaMostrata.h"
#include "editor/ComandiRicerca.h"
#include "editor/ComandoEsporta.h"
#include "editor/ComandoStampa.h"
#include "editor/ContoRighe.h"
#include "editor/CopiaRecupero.h"
#include "editor/Disposizione.h"
#include "editor/Fogli.h"
#include "editor/Guide.h"
#include "editor/Inserimento.h"
#include "editor/Menu.h"
#include "editor/Preferenze.h"
#include "editor/Problemi.h"
#include "editor/Resa.h"
#include "editor/ResaAutomatica.h"
#include "editor/StatoBarra.h"
#include "editor/TipoInUso.h"
#include "editor/UsiModello.h"
#include "editor/Vista.h"
#include "editor/VociInseribili.h"
#include "output/CampiAMisura.h"
#include "output/FlagPerStampe.h"
#include "start/Installazione.h"
#include "template/ComandiFile.h"
#include "template/Documento.h"

namespace parvik {

class Editore final : private Contorno, private InterruttoreAnteprima, private AscoltatoreDocumento {
 public:
  /// Starts in the state without a document type. `vista` and `interlocutore` must outlive the editor;
  /// `vista` is first used when a command runs.
  Editore(Installazione installazione, Catalogo catalogo, Vista& vista, Interlocutore& interlocutore);

  // --- what there is to show

  const std::string& Titolo() const { return titolo_; }  // UTF-8
  bool TipoScelto() const { return tipo_ != nullptr; }
  bool TreSezioni() const { return TipoScelto() && HaTreSezioni(Tipo().NumSezioni); }
  /// Whether the section is one of the template's.
  bool InUso(Sezione sezione) const { return PerArea().InUso(sezione); }
  /// The check mark of the preview; it stays as it was when the document type is given up.
  bool AnteSpuntata() const { return anteSpuntata_; }
  bool AnteVisibile() const { return PerArea().Anteprima; }
  StatoArea PerArea() const {
    if (!TipoScelto()) return {};
    return {.NumSezioni = Tipo().NumSezioni, .Anteprima = anteSpuntata_};
  }
  StatoMenu PerMenu() const {
    return {.TipoScelto = TipoScelto(),
            .TreSezioni = TreSezioni(),
            .Anteprima = anteSpuntata_,
            .TotaliRighe = Totali().has_value(),
            .SettaFlag = settaFlagSpuntata_,
            .PuoAnnullare = documento_.PuoAnnullare(),
            .PuoRipetere = documento_.PuoRipetere(),
            .PuoTrovare = ricerca_.Trovate().InCorso(),
            .DaAnnullare = documento_.GenereDaAnnullare(),
            .DaRipetere = documento_.GenereDaRipetere(),
            .Scelte = scelte_};
  }
  const Preferenze& Scelte() const { return scelte_; }
  const Guide& GuideMesse() const { return guide_; }
  /// False while the preview shows something else than it would show if it were rendered anew. Nothing is
  /// said of a preview that is not shown, or never was rendered.
  bool AnteprimaAggiornata() const { return !AnteVisibile() || mostrata_.Aggiornata(Tipo()); }
  /// What stands at the caret of the active section, in the preview.
  SegniAnteprima SegniAlCursore() const;
  /// The number of the document type; nullopt while none is chosen.
  std::optional<int> NumeroTipo() const {
    return TipoScelto() ? std::optional(Tipo().Indice + 1) : std::nullopt;
  }
  const Catalogo& Campi() const { return catalogo_; }
  const Installazione& Dove() const { return installazione_; }
  const Documento& Modello() const { return documento_; }
  /// For those who show the sections: the user's changes go into it.
  Documento& Modello() { return documento_; }
  FlagPerStampe& Flag() { return flag_; }
  /// What the sections print, line by line.
  const CampiAMisura& AMisura() const { return campi_; }
  /// The sheet of the document type; `Carta::Nessuna` when there is none, and while no type is chosen.
  Foglio FoglioInUso() const { return NumeroTipo() ? fogli_.Di(*NumeroTipo()) : Foglio(); }
  const Fogli& FogliScelti() const { return fogli_; }
  /// The check mark of the print-flags window.
  bool SettaFlagSpuntata() const { return settaFlagSpuntata_; }
  /// The numbers of the line-totals window; nullopt while it is not shown. They are those of the moment at
  /// which it was shown.
  const std::optional<RigheMostrate>& Totali() const { return conto_.Mostrati(); }

  // --- what the user does

  /// A document type was chosen from the list, by its slot.
  void ScegliTipo(std::size_t slot);

  // All that follow need a document type but where they say otherwise: see menus.md for what can be used
  // when.

  void Nuovo();
  void Apri();
  /// A template that was named outside: on the command line, or dropped on the window. As Apri with that name
  /// chosen, but failures are told.
  void ApriDaFuori(const std::filesystem::path& nome);
  /// Without a document type yet: the slot of the one to propose for it, the first whose file-name pattern it
  /// fits, or else the first. nullopt when there is no such file, after a message.
  std::optional<std::size_t> TipoDaProporre(const std::filesystem::path& nome);
  void Salva();
  void SalvaConNome();
  /// The menu entry of the preview: turns it on, which renders, or off.
  void CommutaAnteprima();
  /// The print command: asks for the destination, and renders or prints to it.
  void Stampa();
  /// What a printer would get, into a PDF document.
  void EsportaPdf();
  /// The menu entry of the print-flags window, and that window's own close box.
  void CommutaSettaFlag();
  /// The menu entry of the line totals: shows the numbers of this moment, or hides them.
  void CommutaRighe();
  /// Print flags were set in their window.
  void CambiatiFlag();
  /// Puts the caret where a byte of the preview comes from, where that is certain: a code is selected whole.
  void RaggiungiOrigine(std::size_t byte);

  // The preview that follows by itself.

  /// Whether it is to be rendered anew; a run for another state of the document that is under way is of no
  /// use any more. In every state.
  bool AnteprimaDaRifare() const;
  /// Renders it, or gives the run that is to be made on a thread. Only when it is to be rendered.
  std::optional<LavoroAnteprima> RinnovaAnteprima();
  /// What has become of that run. In every state.
  void Consegna(LavoroAnteprima::Fatto fatto) { automatica_.Consegna(std::move(fatto)); }

  // What is wrong with the template (EditoreProblemi.cpp).

  /// Whether it is to be shown.
  bool ProblemiVisibili() const { return TipoScelto() && scelte_[Preferenza::Problemi]; }
  const Problemi& Trovati() const { return problemi_; }
  /// How many there are, in words; "" while nothing is told. UTF-8.
  std::string DettiProblemi() const;
  /// In every state.
  void ImpostaPaginaVerifica(const PaginaVerifica& pagina) { problemi_.ImpostaPagina(pagina); }
  /// Whether it is to be looked for anew. In every state.
  bool VerificaDaRifare() const { return ProblemiVisibili() && problemi_.DaRifare(Tipo()); }
  /// Looks for it, or gives the check that is to be made on a thread. Only when it is to be looked for.
  std::optional<LavoroVerifica> RinnovaVerifica();
  /// What has become of that check. In every state.
  void Consegna(LavoroVerifica::Fatto fatto);
  /// Puts the caret where a finding is; nothing where that is not certain.
  void RaggiungiProblema(std::size_t quale);
  /// Mends those of the findings that have one right answer, in one step. Tells which were not, because
  /// something else would print.
  void CorreggiProblemi(std::span<const std::size_t> quali);

  /// Find and replace. In every state.
  const ComandiRicerca& Ricerche() const { return ricerca_; }
  ComandiRicerca& Ricerche() { return ricerca_; }

  /// The section that last had the focus, and its caret.
  CursoreSezione CursoreAttivo() const {
    return {.Dove = inserimento_.Attiva(), .Dentro = vista_.CursoreIn(inserimento_.Attiva())};
  }

  // What can be inserted (EditoreCampi.cpp).

  /// Whether its panel is to be shown.
  bool CampiVisibili() const { return TipoScelto() && scelte_[Preferenza::PannelloCampi]; }
  /// What the active section offers, with what was counted last. Valid until the next call.
  const std::vector<VoceInseribile>& VociDaInserire();
  /// All that is known of one of them: lines of UTF-8.
  std::string Detta(const VoceInseribile& voce) const { return voci_.Detta(voce); }
  /// Whether what the template uses is to be counted anew. In every state.
  bool UsiDaContare() const { return TipoScelto() && voci_.DaContare(Tipo()); }
  /// Counts it, or gives the count that is to be made on a thread. Only when it is to be counted.
  std::optional<LavoroUsi> ContaUsi();
  /// What has become of that count. In every state.
  void Consegna(LavoroUsi::Fatto fatto) { voci_.Consegna(std::move(fatto)); }

  /// The section that last had the focus, at first the Testata.
  Sezione Attiva() const { return inserimento_.Attiva(); }
  /// A template that was not saved when the program ended, of a type that the catalogue has: all of it as it
  /// was then, and modified. What its file holds now counts as its own only if that was so then. Asks about
  /// the template at hand as Apri does; false when that gave it up. In every state (EditoreRecupero.cpp).
  bool Ripristina(const CopiaRecupero& copia);

  /// The section that now has the focus; it must be in use.
  void AttivaSezione(Sezione sezione);

  /// Before a dialog that builds a code is shown.
  void PreparaInserimento();
  /// The one routine through which every dialog inserts finished codes (editor/Inserimento.h).
  void InserisciCodici(std::span<const std::string> codici);

  /// Takes back, or does again, the last change of all sections; nothing where there is none.
  void Annulla();
  void Ripeti();

  /// The variables and flags that the active section offers to a dialog. Errors in the catalogue have been
  /// shown.
  std::vector<Variabile> VariabiliDaOffrire();
  std::vector<parvik::Flag> FlagDaOffrire();

  /// What a code of that section is, for a tooltip. UTF-8. The section must be in use.
  std::string Descrivi(Sezione sezione, std::string_view contenuto);

  /// What stands in the field of a code of that section; bytes of Windows-1252. The section must be in use.
  std::string TestoCampo(Sezione sezione, std::string_view contenuto, const PostoCampo& posto);
  /// The code with another width; nullopt where it cannot be given one. The section must be in use.
  std::optional<std::string> ConLarghezza(Sezione sezione, std::string_view contenuto,
                                          std::int16_t larghezza);
  /// What the status bar says of the active section's caret; `mostrato` is what the preview pane holds, and
  /// `foglio` what there is to say of its sheet.
  TestiBarra Barra(const TestoAnteprima& mostrato, const std::optional<MisuraFoglio>& foglio);

  /// The lines of a section, its last line completed; nullopt after a message when there are too many to
  /// count.
  std::optional<std::int16_t> ContaRighe(Sezione sezione);
  /// Needs a type of three sections.
  void ImpostaCorpo(const ImpostazioniCorpo& corpo);

  /// The sheet of the document type, without anything wrong.
  void ImpostaFoglio(const Foglio& foglio);

  /// Sets a guide at a column, from 0, or takes it away. In every state.
  void CommutaGuida(std::size_t colonna);
  /// Turns a switch on or off. In every state.
  void Commuta(Preferenza quale);
  /// The switches and the sheets as they were left, before anything is shown.
  void Riprendi(const Preferenze& scelte, const Fogli& fogli) {
    scelte_ = scelte;
    fogli_ = fogli;
  }

  /// Whether the window may close. Asks when the template is modified. In every state.
  bool PuoChiudere() { return !TipoScelto() || comandi_.PuoChiudere(Tipo()); }
  /// A section was edited, or a key was pressed in it.
  void SegnaModificato();

 private:
  const TipoDoc& Tipo() const { return tipo_->Tipo(); }
  void ApplicaTipoDoc();
  void DimenticaProblemi();

  void ImpostaTitolo(std::string titolo) override { titolo_ = std::move(titolo); }
  void SpegniAnteprima() override;
  void AzzeraFlagStampe() override;
  void TornaSenzaTipo() override;
  bool AnteprimaAccesa() const override { return anteSpuntata_; }
  bool AccendiAnteprima() override;
  void Modificata(const CambiamentoTesto& /*cambiamento*/) override { vista_.CambiatoTesto(); }
  void Sostituita(Sezione /*sezione*/) override { vista_.CambiatoTesto(); }

  Installazione installazione_;
  Catalogo catalogo_;
  Vista& vista_;
  Interlocutore& interlocutore_;
  Documento documento_;
  FlagPerStampe flag_;
  CampiAMisura campi_{documento_, flag_};
  ComandiFile comandi_;
  AnteprimaMostrata mostrata_;
  Resa resa_;
  ResaAutomatica automatica_;
  ComandoStampa stampa_;
  ComandoEsporta esporta_;
  ContoRighe conto_;
  Inserimento inserimento_;
  std::unique_ptr<TipoInUso> tipo_;  // nullptr while none is chosen
  std::string titolo_;
  bool anteSpuntata_ = false;
  bool settaFlagSpuntata_ = false;
  Preferenze scelte_;
  Guide guide_;
  Fogli fogli_;
  Problemi problemi_{documento_, catalogo_};
  ComandiRicerca ricerca_;
  VociInseribili voci_{documento_, catalogo_};
  Documento::Ascolto ascolto_;
};

}  // namespace parvik

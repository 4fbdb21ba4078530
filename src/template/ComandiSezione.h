// What a person does to a section, as decisions: keys, typing, pasting, dragging become changes of the
// document, where the key rules let them (docs/key-rules.md).
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "common/Sezione.h"
#include "template/Documento.h"
#include "template/TastiSezione.h"

namespace parvik {

/// Who shows a section: has its caret, and opens the dialogs.
class VedutaSezione {
 public:
  VedutaSezione() = default;
  VedutaSezione(const VedutaSezione&) = delete;
  VedutaSezione& operator=(const VedutaSezione&) = delete;
  virtual ~VedutaSezione() = default;

  /// After a change at the caret it stands behind what has come.
  virtual Cursore CursoreAttuale() const = 0;
  virtual void Poni(Cursore cursore) = 0;
  /// The selected code, whose content this is, is to be opened in its dialog: done when it returns.
  virtual void ApriDialogo(const std::string& contenuto) = 0;
  /// The same for a new variable.
  virtual void ApriVariabile() = 0;
};

/// Texts are bytes; a CR alone in them is a line end.
class ComandiSezione {
 public:
  /// Document and view must outlive this.
  ComandiSezione(Documento& documento, Sezione sezione, VedutaSezione& veduta)
      : documento_(documento), sezione_(sezione), veduta_(veduta) {}

  const TestoSezione& Testo() const { return documento_.Testo(sezione_); }
  Selezione Selezionato() const { return veduta_.CursoreAttuale().Selezionato(); }

  /// What it came to.
  AzioneTasto Premi(TastoSezione tasto, Pressione pressione);
  /// Types a text, character by character. Ends early where the rules do something else than type.
  void Scrivi(std::string_view testo, Pressione pressione);
  void VaiACapo(Pressione pressione);
  /// Puts a whole text in place of the selection, full stops and codes included.
  void Incolla(std::string_view testo);
  /// Takes away what is selected.
  void Elimina() { Premi(TastoSezione::Togli, Pressione::Prima); }
  /// Without a selection, takes away what the caret's line has behind the caret, or the line's end.
  void CancellaFinoAFineRiga(Pressione pressione);
  /// Another code takes a code's place; the caret stays where it is in the text around it.
  void CambiaCodice(Selezione codice, std::string_view nuovo);
  /// The code at that place is selected, and its dialog opens. One of unknown kind stays selected.
  void ApriCodice(Selezione codice);

  /// Whether a part of the text may go. One that cuts a code may not, and is selected with the whole of it.
  bool LasciaTogliere(Selezione parte, Pressione pressione);
  /// Takes a part away that may go.
  void Togli(Selezione parte);

  /// What comes by the mouse: to a place outside the codes.
  void Deposita(std::size_t posto, std::string_view testo);
  /// The selection to such a place in the same text, in one step.
  void Sposta(std::size_t posto);

 private:
  bool ScriviCarattere(char carattere, Pressione pressione);
  bool Sostituisci(std::string_view testo, GenereModifica genere, Pressione pressione);
  void EseguiConsueta(TastoSezione tasto);
  Selezione Accanto(TastoSezione tasto) const;
  void Cambia(Selezione parte, std::string_view messi, GenereModifica genere);

  Documento& documento_;
  Sezione sezione_;
  VedutaSezione& veduta_;
};

}  // namespace parvik

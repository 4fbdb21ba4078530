// The template being edited: its sections' texts, its settings, where it comes from, and what was done to it
// (docs/document.md).
#pragma once

#include <array>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "common/Sezione.h"
#include "template/ImmagineModello.h"
#include "template/RegistroModifiche.h"
#include "template/TestoSezione.h"

namespace parvik {

/// What a file held when this document was last read from it or written to it.
struct Provenienza {
  std::filesystem::path File;
  /// All of them: no digest could mistake another file for this one. They never change: whoever holds them
  /// may compare with them on another thread, and knows by the pointer whether they are still the document's.
  std::shared_ptr<const std::string> Byte;
};

/// What a document is besides its texts.
struct StatoModello {
  std::filesystem::path NomeFile;  // empty while none was opened or saved
  bool Modificato = false;         // since the last open, save or choice of a document type
  ImpostazioniCorpo Corpo;
  /// nullopt while the document comes from no file: a new one, or one that could not be read whole.
  std::optional<Provenienza> Origine;
  /// Where the last save kept what it found in the place of the document's own; empty when it kept nothing.
  std::filesystem::path Tenuta;
};

/// A change that was made.
struct CambiamentoTesto {
  Sezione Dove;
  const TestoSezione& Prima;  // the text before it
  const Modifica& Fatta;
  bool DelProgramma;  // nobody's: a caret where it was made stays in front of it
};

/// Who shows a document's texts, or keeps something that follows from them. Told when the text has changed
/// already. What it hears of it may not change.
class AscoltatoreDocumento {
 public:
  AscoltatoreDocumento() = default;
  AscoltatoreDocumento(const AscoltatoreDocumento&) = delete;
  AscoltatoreDocumento& operator=(const AscoltatoreDocumento&) = delete;
  virtual ~AscoltatoreDocumento() = default;

  virtual void Modificata(const CambiamentoTesto& cambiamento) = 0;
  /// The whole text is another one.
  virtual void Sostituita(Sezione sezione) = 0;
};

/// A caret in one of the sections.
struct CursoreSezione {
  Sezione Dove = Sezione::Testata;
  Cursore Dentro;

  bool operator==(const CursoreSezione&) const = default;
};

class Documento {
 public:
  Documento() = default;
  Documento(const Documento&) = delete;
  Documento& operator=(const Documento&) = delete;
  ~Documento() = default;

  StatoModello& Stato() { return stato_; }
  const StatoModello& Stato() const { return stato_; }

  /// A copy of it is a snapshot.
  const TestoSezione& Testo(Sezione sezione) const { return testi_[Indice(sezione)]; }
  const std::array<TestoSezione, MaxSezioni>& Testi() const { return testi_; }

  // Changes happen whole or, without memory for them, not at all: then what the library throws comes out.

  // --- the user's changes: each of them makes the document modified, and can be undone

  /// `prima` is the caret before the change, where undoing puts it back.
  void Applica(Sezione sezione, const Modifica& modifica, GenereModifica genere, Cursore prima);
  /// What comes next does not go on with what was typed so far: the caret has moved.
  void InterrompiBattitura() { registro_.Interrompi(); }

  /// As long as it lives, all changes are one step.
  class PassoUnico {
   public:
    explicit PassoUnico(Documento& documento) : registro_(documento.registro_) { registro_.Apri(); }
    PassoUnico(const PassoUnico&) = delete;
    PassoUnico& operator=(const PassoUnico&) = delete;
    ~PassoUnico() { registro_.Chiudi(); }

   private:
    RegistroModifiche& registro_;
  };

  bool PuoAnnullare() const { return registro_.PuoAnnullare(); }
  bool PuoRipetere() const { return registro_.PuoRipetere(); }
  /// What the step is that would be undone, or done again; Intera where there is none.
  GenereModifica GenereDaAnnullare() const { return registro_.GenereDaAnnullare(); }
  GenereModifica GenereDaRipetere() const { return registro_.GenereDaRipetere(); }
  /// Both: one step, the last of all sections; where the caret belongs now. There must be a step.
  CursoreSezione Annulla();
  CursoreSezione Ripeti();

  // --- the program's changes: modified or not, the document stays as it is

  /// Another text, and no step leads back from it: what can be undone has to be forgotten, too.
  void Imposta(Sezione sezione, std::string_view byte);
  void DimenticaPassi() { registro_.Dimentica(); }
  /// The text as it was read back from the file that it was saved to: a step, where it is another one.
  void Rileggi(Sezione sezione, std::string_view byte);
  /// Ends the last line: a step.
  void CompletaUltimaRiga(Sezione sezione);

  // --- who listens

  /// A listener is told as long as this lives.
  class Ascolto {
   public:
    Ascolto() = default;
    Ascolto(Ascolto&&) = default;
    Ascolto& operator=(Ascolto&&) = default;
    Ascolto(const Ascolto&) = delete;
    Ascolto& operator=(const Ascolto&) = delete;
    ~Ascolto() = default;

   private:
    friend class Documento;
    std::shared_ptr<AscoltatoreDocumento*> chi_;
  };
  [[nodiscard]] Ascolto Ascolta(AscoltatoreDocumento& chi);

 private:
  enum class Autore { Utente, Programma };

  /// A change that has only to be put in its place.
  struct Pronta {
    ModificaSezione Fatta;
    TestoSezione Dopo;
  };
  std::vector<Pronta> Prepara(std::vector<ModificaSezione> modifiche) const;
  void Metti(Pronta pronta, Autore autore);
  void Annota(Sezione sezione, const Modifica& modifica, GenereModifica genere, Cursore prima, Autore autore);
  template <class Azione>
  void Avvisa(Azione azione);

  std::array<TestoSezione, MaxSezioni> testi_;
  StatoModello stato_;
  RegistroModifiche registro_;
  std::vector<std::weak_ptr<AscoltatoreDocumento*>> ascoltatori_;
};

}  // namespace parvik

// The main window as the editor's commands see it, by what they are about.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <stop_token>
#include <string>
#include <string_view>

#include "common/Esito.h"
#include "common/Sezione.h"
#include "output/Destinazione.h"
#include "output/GeneraStampa.h"
#include "output/LavoroPdf.h"
#include "output/Ricollocazione.h"
#include "output/SelezioneAnteprima.h"
#include "output/TestoAnteprima.h"
#include "template/Documento.h"

namespace parvik {

/// The preview pane, and waiting for what fills it.
class VistaAnteprima {
 public:
  VistaAnteprima() = default;
  VistaAnteprima(const VistaAnteprima&) = delete;
  VistaAnteprima& operator=(const VistaAnteprima&) = delete;
  virtual ~VistaAnteprima() = default;

  /// Fills the preview pane anew: the caret at its start, nothing selected.
  virtual void MostraAnteprima(Anteprima anteprima) = 0;
  /// Puts the whole text in the place of its beginning, which was shown first; what the user has done in the
  /// pane meanwhile stays.
  virtual void CompletaAnteprima(Anteprima anteprima) = 0;
  /// Puts another preview in the place of the one that the pane shows, by itself: caret, selection and what
  /// shows stay with their text, which has gone where `dove` says.
  virtual void RinnovaAnteprima(std::shared_ptr<const TestoAnteprima> anteprima,
                                const Ricollocazione& dove) = 0;
  /// What the pane holds and what of it is selected.
  virtual SelezioneAnteprima InAnteprima() const = 0;
  /// Selects a part of it, in sight; the focus stays where it is.
  virtual void SelezionaInAnteprima(const Selezione& parte) = 0;
  /// The preview was rendered anew, or that failed: what it shows, and whether that is up to date.
  virtual void CambiataAnteprima() = 0;
  /// Runs `lavoro` on a thread of its own while the window stays alive, and returns when it has ended. When
  /// it takes long the window says so, and lets it be given up: then `lavoro` is asked to stop. Fails when
  /// `lavoro` ran out of memory.
  virtual Esito<void> Attendi(const std::function<void(std::stop_token)>& lavoro) = 0;
};

/// What the commands that print and export ask for.
class VistaStampa {
 public:
  VistaStampa() = default;
  VistaStampa(const VistaStampa&) = delete;
  VistaStampa& operator=(const VistaStampa&) = delete;
  virtual ~VistaStampa() = default;

  /// The destination of a print; nullopt when it was given up.
  virtual std::optional<Destinazione> ScegliDestinazione() = 0;
  /// Asks for a printer. What it returns prints the preview pane's content, or its selection, under the name
  /// of the print job (UTF-8), and says nothing of failures. Empty when no printer was chosen. The error is
  /// the message that the user sees (UTF-8) when there is nothing to print with.
  using Tipografo = std::function<void(const std::string& nomeLavoro)>;
  virtual Esito<Tipografo, std::string> ScegliStampante() = 0;
  /// Paints the pages of a PDF document and hands its bytes to `scrivi`, piece by piece, until that says
  /// false. When it takes long the window says so, and lets it be given up. Whether `scrivi` got all of it.
  virtual bool ComponiPdf(const LavoroPdf& lavoro, const std::function<bool(std::string_view)>& scrivi) = 0;
};

/// The carets of the sections.
class VistaSezioni {
 public:
  VistaSezioni() = default;
  VistaSezioni(const VistaSezioni&) = delete;
  VistaSezioni& operator=(const VistaSezioni&) = delete;
  virtual ~VistaSezioni() = default;

  /// Where the caret of a section is.
  virtual Cursore CursoreIn(Sezione sezione) const = 0;
  virtual void ImpostaCursore(Sezione sezione, Cursore cursore) = 0;
  /// Gives the section the focus, with the caret in sight.
  virtual void Raggiungi(const CursoreSezione& cursore) = 0;
  /// The same without the focus, which stays where it is: the section is the active one all the same.
  virtual void Rivela(const CursoreSezione& cursore) = 0;
};

/// All of it.
class Vista : public VistaAnteprima, public VistaStampa, public VistaSezioni {
 public:
  /// The editor's state has changed: caption, menus, what is visible, layout.
  virtual void Aggiorna() = 0;
  /// The text of a section has changed, and with it what can be undone. Called in the middle of the change:
  /// nothing but what shows may follow it.
  virtual void CambiatoTesto() = 0;
  /// Codes may print another width, or begin or cease to show, without any change of text.
  virtual void CambiataMisura() = 0;
  /// What is wrong with the template was looked for anew, or is no longer told.
  virtual void CambiatiProblemi() = 0;
  /// What is looked for was found elsewhere, or is no longer looked for.
  virtual void CambiataRicerca() = 0;
  /// The print flags were loaded anew, set to false or discarded.
  virtual void RicaricaFlagStampe() = 0;
};

}  // namespace parvik

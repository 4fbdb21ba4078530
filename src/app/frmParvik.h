// The main editor window: the wiring between the editor's commands and what shows them.
#pragma once

#include <QMainWindow>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "app/barStrumenti.h"
#include "app/qtAnteAuto.h"
#include "app/qtArea.h"
#include "app/qtBarraStato.h"
#include "app/qtFinestrelle.h"
#include "app/qtGuida.h"
#include "app/qtIngrandimento.h"
#include "app/qtInizio.h"
#include "app/qtInserimenti.h"
#include "app/qtMaschere.h"
#include "app/qtMenu.h"
#include "app/qtMisure.h"
#include "app/qtNotizie.h"
#include "app/qtRecupero.h"
#include "app/qtRicordi.h"
#include "app/qtRighelli.h"
#include "app/qtTrova.h"
#include "app/qtVerifica.h"
#include "editor/Editore.h"
#include "editor/Vista.h"
#include "start/Avvio.h"

namespace parvik {

class frmParvik final : public QMainWindow, private Vista {
  Q_OBJECT

 public:
  /// `interlocutore` must outlive the window.
  frmParvik(DatiAvvio dati, Interlocutore& interlocutore);
  frmParvik(const frmParvik&) = delete;
  frmParvik& operator=(const frmParvik&) = delete;
  ~frmParvik() override;

  /// Whether the program may end, whatever is open or at work; asks when the template is modified.
  bool PuoChiudere() { return editore_.PuoChiudere(); }

  /// What the command line asks for, once the window is there: a document type, by its slot, and a template
  /// to open. Without a type the list of types opens first. A template that does not exist changes nothing.
  void Comincia(std::optional<std::size_t> tipo, const std::optional<std::filesystem::path>& file);

 protected:
  void closeEvent(QCloseEvent* evento) override;

 private:
  // What the editor's commands see of the window.
  void Aggiorna() override;
  void CambiatoTesto() override;
  void CambiataMisura() override;
  void MostraAnteprima(Anteprima anteprima) override;
  void CompletaAnteprima(Anteprima anteprima) override;
  void RinnovaAnteprima(std::shared_ptr<const TestoAnteprima> anteprima, const Ricollocazione& dove) override;
  void CambiataAnteprima() override;
  Esito<void> Attendi(const std::function<void(std::stop_token)>& lavoro) override;
  std::optional<Destinazione> ScegliDestinazione() override;
  Esito<Tipografo, std::string> ScegliStampante() override;
  bool ComponiPdf(const LavoroPdf& lavoro, const std::function<bool(std::string_view)>& scrivi) override;
  Cursore CursoreIn(Sezione sezione) const override;
  void ImpostaCursore(Sezione sezione, Cursore cursore) override;
  void Raggiungi(const CursoreSezione& cursore) override;
  void Rivela(const CursoreSezione& cursore) override;
  SelezioneAnteprima InAnteprima() const override;
  void SelezionaInAnteprima(const Selezione& parte) override;
  void CambiatiProblemi() override;
  void CambiataRicerca() override;
  void RicaricaFlagStampe() override;

  void CreaArea();
  void CreaIngrandimento();
  void CollegaSezione(Sezione sezione);
  void AttivaSezione(Sezione sezione);
  void SeguiAnteprima();

  // frmParvikMenu.cpp
  void CreaMenu();
  void Esegui(Comando comando);
  /// Undo or redo, over all sections.
  using PassoEditore = void (Editore::*)();
  void EseguiPasso(PassoEditore passo);

  // frmParvikApertura.cpp
  void CreaApertura();
  void CreaInizio();
  /// True when a type was chosen.
  bool ScegliTipo(std::size_t proposta);
  void ApplicaTipo(std::size_t slot);
  void ApriDaFuori(const std::filesystem::path& file);
  void CreaNotizie(const DatiAvvio& dati);
  bool Ripristina(const CopiaRecupero& copia);

  qtArea* area_ = nullptr;
  qtMenu* menu_ = nullptr;
  qtBarraStato* barraStato_ = nullptr;
  barStrumenti* strumenti_ = nullptr;  // made when it is first shown
  qtGuida* guida_ = nullptr;
  qtInizio* inizio_ = nullptr;
  std::filesystem::path dirProgramma_;  // where the print module is looked for from
  bool inAttesa_ = false;               // a command waits for its work: the window stays
  Editore editore_;
  qtMaschere maschere_;
  qtFinestrelle finestrelle_;
  qtRicordi ricordi_;
  // Once there is an area.
  std::optional<qtMisure> misure_;
  std::optional<qtRighelli> righelli_;
  std::unique_ptr<qtAnteAuto> anteAuto_;
  std::unique_ptr<qtVerifica> verifica_;
  std::unique_ptr<qtTrova> trova_;
  std::unique_ptr<qtInserimenti> inserimenti_;
  std::unique_ptr<qtNotizie> notizie_;
  std::unique_ptr<qtRecupero> recupero_;
};

}  // namespace parvik

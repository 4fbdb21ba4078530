// The main editor window: the controls, and the wiring between them and the editor's commands.
#pragma once

#include <QMainWindow>
#include <array>
#include <filesystem>
#include <memory>
#include <string>

#include "app/lblTCP.h"
#include "app/qtMaschere.h"
#include "app/qtMenu.h"
#include "editor/Disposizione.h"
#include "editor/Editore.h"
#include "output/frmSettaFlag.h"
#include "output/frmTotRighe.h"
#include "output/lblRighe.h"
#include "output/ricAnte.h"
#include "start/Avvio.h"
#include "template/txtTCP.h"

namespace parvik {

class frmParvik final : public QMainWindow, private Vista {
  Q_OBJECT

 public:
  /// `interlocutore` must outlive the window.
  frmParvik(DatiAvvio dati, Interlocutore& interlocutore);

  /// Whether the program may end, whatever is open or at work; asks when the template is modified.
  bool PuoChiudere() { return editore_.PuoChiudere(); }

  /// What the command line asks for, once the window is there: a document type, by its slot, and a template
  /// to open. Without a type the list of types opens first. A template that does not exist changes nothing.
  void Comincia(std::optional<std::size_t> tipo, const std::optional<std::filesystem::path>& file);

 protected:
  void closeEvent(QCloseEvent* evento) override;
  bool eventFilter(QObject* oggetto, QEvent* evento) override;

 private:
  // What the editor's commands see of the window.
  void Aggiorna() override;
  void MostraAnteprima(Anteprima anteprima) override;
  void CompletaAnteprima(Anteprima anteprima) override;
  Esito<void> Attendi(const std::function<void(std::stop_token)>& lavoro) override;
  std::optional<Destinazione> ScegliDestinazione() override;
  Esito<Tipografo, std::string> ScegliStampante() override;
  Cursore CursoreIn(Sezione sezione) const override;
  void ImpostaCursore(Sezione sezione, Cursore cursore) override;
  void Raggiungi(const CursoreSezione& cursore) override;
  void RicaricaFlagStampe() override;

  void CreaControlli();
  void CreaDivisore();
  void CreaApertura();
  void MisuraEtichette();
  void CreaSezione(Sezione sezione);
  void CollegaSezione(Sezione sezione);
  void CreaMenu();
  void Esegui(Comando comando);
  void CreaPassi();
  /// Undo or redo, over all sections.
  using PassoEditore = void (Editore::*)();
  void EseguiPasso(PassoEditore passo);
  Finestra Misure() const;
  void ResizeControls();
  void SpostaDivisore(int x);
  void ColoraLabel(Sezione attiva);

  /// True when a type was chosen.
  bool ScegliTipo(std::size_t proposta);
  void ApplicaTipo(std::size_t slot);
  void ApriDaFuori(const std::filesystem::path& file);
  void MostraInformazioni();
  void MostraFlagStampe();
  void MostraTotali();
  void AttivaSezione(Sezione sezione);

  QWidget* area_ = nullptr;
  std::array<txtTCP*, MaxSezioni> sezioni_ = {};
  std::array<lblTCP*, MaxSezioni> etichette_ = {};
  lblRighe* lblRighe_ = nullptr;
  ricAnte* anteprima_ = nullptr;
  std::optional<int> divisore_;  // in twips; where the user has dragged the boundary since the last resize
  bool inAttesa_ = false;        // a command waits for its work: the window stays
  bool etichetteMisurate_ = false;
  qtMenu* menu_ = nullptr;
  std::unique_ptr<frmTotRighe> totali_;  // made anew each time it is shown
  frmSettaFlag* settaFlag_ = nullptr;    // made when it is first shown
  std::filesystem::path dirProgramma_;   // where the print module is looked for from
  Editore editore_;
  qtMaschere maschere_;
};

}  // namespace parvik

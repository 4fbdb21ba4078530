// The main editor window: the controls, and the wiring between them and the editor's commands.
#pragma once

#include <QHash>
#include <QLabel>
#include <QMainWindow>
#include <array>
#include <memory>
#include <string>
#include <string_view>

#include "app/Avvio.h"
#include "app/Editore.h"
#include "app/frmMaschere.h"
#include "output/frmSettaFlag.h"
#include "output/frmTotRighe.h"
#include "output/ricAnte.h"
#include "template/txtTCP.h"

namespace parvik {

class frmParvik final : public QMainWindow, private Vista {
  Q_OBJECT

 public:
  /// `interlocutore` must outlive the window.
  frmParvik(DatiAvvio dati, Interlocutore& interlocutore);

 protected:
  void closeEvent(QCloseEvent* evento) override;
  bool eventFilter(QObject* oggetto, QEvent* evento) override;

 private:
  // What the editor's commands see of the window.
  std::string Testo(Sezione sezione) const override;
  void ImpostaTesto(Sezione sezione, std::string_view testo) override;
  void CompletaUltimaRiga(Sezione sezione) override;
  void Aggiorna() override;
  void MostraAnteprima(const Anteprima& anteprima) override;
  void InserisciCodice(Sezione sezione, std::string_view codice) override;
  void RicaricaFlagStampe() override;

  void CreaControlli();
  void CreaEtichetta(Sezione sezione);
  void CreaSezione(Sezione sezione);
  void CreaMenu();
  void CollegaMenu();
  void AggiornaMenu();
  void ResizeControls();
  void ColoraLabel(Sezione attiva);

  void ScegliTipo();
  void MostraInformazioni();
  void MostraFlagStampe();
  void MostraTotali();
  void AttivaSezione(Sezione sezione);
  void AggiornaRigaColonna();

  QWidget* area_ = nullptr;
  std::array<txtTCP*, MaxSezioni> sezioni_ = {};
  std::array<QLabel*, MaxSezioni> etichette_ = {};
  QLabel* lblRighe_ = nullptr;
  ricAnte* anteprima_ = nullptr;
  QHash<QString, QAction*> azioni_;
  std::unique_ptr<frmTotRighe> totali_;  // made anew each time it is shown
  frmSettaFlag* settaFlag_ = nullptr;    // made when it is first shown
  Editore editore_;
  frmMaschere maschere_;
};

}  // namespace parvik

// The editor of one section: a view of the document's text. What a person does here becomes the document's
// changes, where the key rules let it (template/ComandiSezione.h), and is shown when it has.
#pragma once

#include <QPlainTextEdit>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "common/Sezione.h"
#include "common/righello.h"
#include "template/ComandiSezione.h"
#include "template/qtColori.h"
#include "template/qtTrovati.h"
#include "template/txtBordo.h"
#include "template/txtFette.h"
#include "template/txtGesti.h"
#include "template/txtMenu.h"
#include "template/txtMisura.h"
#include "template/txtOnde.h"
#include "template/txtPunti.h"
#include "template/txtSpecchio.h"

namespace parvik {

class txtTCP final : public QPlainTextEdit, private VedutaSezione {
  Q_OBJECT

 public:
  /// What a code is, in words: for the tooltip, and for assistive technologies the one at the caret.
  using Descrizione = std::function<QString(std::string_view contenuto)>;

  /// Shows a section of `documento`, which must outlive this.
  txtTCP(Documento& documento, Sezione sezione, QWidget* padre);

  /// Where the caret is, in bytes of the section.
  Cursore CursoreAttuale() const override { return specchio_->InByte(textCursor()); }
  void Poni(Cursore cursore) override { setTextCursor(specchio_->InTesto(cursore)); }

  /// Gives up what an input method is composing.
  void FinisciComposizione();

  /// Whether the section is one of the template's. Where it is not, it keeps its text, and nothing that a
  /// person does gets to it: no key, no mouse, no paste, no drop, no edit of an assistive technology.
  bool InUso() const { return !isReadOnly(); }
  void ImpostaUso(bool inUso);

  /// The text so many points larger than the system's fixed-pitch font (editor/Ingrandimento.h).
  void Ingrandisci(int passi);

  void ImpostaDescrizione(Descrizione descrizione) { descrizione_ = std::move(descrizione); }

  /// Draws every code as wide as what it prints, or no longer: nullptr. The text is the same text. `campi`
  /// must outlive this, and hear of the document's changes before it.
  void MostraAMisura(const CampiAMisura* campi, const LettoreCampi& lettore);
  bool AMisura() const { return misura_ != nullptr; }
  /// Above the text, while it is shown to measure.
  void MostraRighello(bool mostra);
  /// nullptr until it was first shown.
  righello* Righello() const { return righello_; }
  /// Codes may print something else than they did, although the text is the same.
  void Rimisura();

  /// Draws wavy lines under what is wrong, or no longer: an empty function. It is asked whenever they are
  /// drawn or told.
  void MostraOnde(LettoreOnde onde);
  /// What it says is other than it was.
  void RidisegnaOnde();
  /// Marks what was found, or no longer: an empty function. It is asked whenever they are drawn.
  void MostraTrovati(LettoreTrovati trovati);
  /// Whether something is wrong at a position of the toolkit's text. The stretch from `inizio` to `fine` is
  /// narrowed to the part around it of which the same can be said.
  bool Errata(int posizione, int& inizio, int& fine) const;

  // Edits that come from neither keyboard nor mouse, under the same rules.

  void Scrivi(const QString& testo, Pressione pressione);
  void Incolla(const QString& testo);
  void Elimina();
  /// The same, and takes it to the clipboard.
  void Taglia(Pressione pressione = Pressione::Prima);

 signals:
  /// A key was pressed here, any but those that only make another key of the next one.
  void TastoPremuto();
  void Attivata(parvik::Sezione sezione);
  /// The selected code (its content, as bytes) is to be opened in its dialog. Handled before the signal
  /// returns.
  void CodiceDaAprire(const std::string& contenuto);
  /// A new variable is to be inserted. Handled before the signal returns.
  void VariabileDaInserire();
  /// A new flag is to be inserted where the caret is.
  void FlagDaInserire();
  /// The context menu asks for the document's last step.
  void DaAnnullare();
  void DaRipetere();

 protected:
  bool event(QEvent* evento) override;
  void changeEvent(QEvent* evento) override;
  void resizeEvent(QResizeEvent* evento) override;
  void focusInEvent(QFocusEvent* evento) override;
  void paintEvent(QPaintEvent* evento) override;
  void scrollContentsBy(int dx, int dy) override;
  void keyPressEvent(QKeyEvent* evento) override;
  void inputMethodEvent(QInputMethodEvent* evento) override;
  QMimeData* createMimeDataFromSelection() const override;
  void insertFromMimeData(const QMimeData* dati) override;
  // txtTCPMouse.cpp
  bool viewportEvent(QEvent* evento) override;
  void mousePressEvent(QMouseEvent* evento) override;
  void mouseMoveEvent(QMouseEvent* evento) override;
  void mouseReleaseEvent(QMouseEvent* evento) override;
  void mouseDoubleClickEvent(QMouseEvent* evento) override;
  void contextMenuEvent(QContextMenuEvent* evento) override;
  void dropEvent(QDropEvent* evento) override;
  StatoMenuSezione PerMenu(const std::optional<Selezione>& codice) const;
  AzioniMenuSezione DalMenu(const std::optional<Selezione>& codice);

 private:
  void ApriDialogo(const std::string& contenuto) override { emit CodiceDaAprire(contenuto); }
  void ApriVariabile() override { emit VariabileDaInserire(); }

  void ImpostaCarattere();
  bool Esclude(QEvent& evento) const;
  void SegnaCodiciAlCursore();

  // txtTCPOnde.cpp
  std::vector<OndaTesto> OndeIn(const Selezione& parte) const;
  void DisegnaSegni(const QRect& parte);
  void DescriviCursore();

  // txtTCPMisura.cpp
  void DisegnaMisurata(const QRect& parte);
  void Ricolora();
  void CambiatoCarattere();
  void RidisegnaRigaDelCursore();
  void TieniFuoriDaiCampi();
  bool PassaCampo(const QKeyEvent& evento);
  bool ApriCampoDopo();
  GrigliaColonne Griglia() const;
  bool PremiBordo(const QMouseEvent& evento);
  bool MuoviBordo(const QMouseEvent& evento);
  bool RilasciaBordo(const QMouseEvent& evento);
  void LasciaBordo();
  std::optional<Selezione> CodiceA(QPoint punto) const;

  void CursoreMosso();
  bool EseguiModifica(const QKeyEvent& evento);
  bool EseguiMovimento(QKeyEvent& evento);

  txtPunti Punti() const { return {*this, *specchio_}; }
  bool MostraDescrizione(QPoint punto, QPoint globale);
  void OffriSelezione();

  Documento& documento_;
  Sezione sezione_;
  int ingrandimento_ = 0;
  ComandiSezione comandi_;
  txtSpecchio* specchio_ = nullptr;
  qtColori* colori_ = nullptr;
  Descrizione descrizione_;
  LettoreOnde onde_;
  LettoreTrovati trovati_;
  txtGesti gesti_;
  std::unique_ptr<txtMisura> misura_;  // while the section is shown to measure
  txtFette* fette_ = nullptr;          // made when it first was
  righello* righello_ = nullptr;       // the same
  std::optional<txtBordo> bordo_;      // while one is dragged
  int rigaDelCursore_ = 0;             // where the caret was when it was last drawn
};

}  // namespace parvik

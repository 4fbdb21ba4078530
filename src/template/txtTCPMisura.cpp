// The section editor shown to measure: what is drawn, where the caret can stand, edges of fields that are
// dragged.
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QTextBlock>
#include <QToolTip>
#include <utility>

#include "template/txtTCP.h"
#include "tokens/Codice.h"

namespace parvik {

void txtTCP::MostraAMisura(const CampiAMisura* campi, const LettoreCampi& lettore) {
  if ((campi != nullptr) == AMisura()) return;
  LasciaBordo();
  if (AMisura()) viewport()->setCursor(Qt::IBeamCursor);
  colori_->Spazia(nullptr);
  misura_.reset();
  if (campi != nullptr) {
    setExtraSelections({});
    viewport()->setMouseTracking(true);
    misura_ = std::make_unique<txtMisura>(*campi, lettore, documento_, sezione_, *this, *specchio_);
    colori_->Spazia(&misura_->Spazi());
    connect(misura_.get(), &txtMisura::DaRidisegnare, viewport(), qOverload<>(&QWidget::update));
    connect(misura_.get(), &txtMisura::DaRifare, colori_, [this](int riga) {
      colori_->ColoraDa(riga);
      colori_->Prosegui();
    });
  }
  CursoreMosso();
  Ricolora();
}

void txtTCP::Rimisura() {
  if (AMisura()) Ricolora();
}

void txtTCP::Ricolora() {
  if (fette_ == nullptr) fette_ = new txtFette(*this, *colori_);
  fette_->Comincia();
  viewport()->update();
}

GrigliaColonne txtTCP::Griglia() const {
  return {.Origine = contentOffset().x() + document()->documentMargin(),
          .Cella = misura_ ? misura_->Cella() : 1,
          .Cursore = static_cast<qreal>(cursorRect().left())};
}

void txtTCP::MostraRighello(bool mostra) {
  if (!mostra && righello_ == nullptr) return;
  if (righello_ == nullptr) {
    const QString numero = QString::number(Indice(sezione_));
    righello_ = new righello("righello_" + numero, "Righello " + accessibleName(), *this,
                             [this] { return Griglia(); });
  }
  righello_->setVisible(mostra);
  setViewportMargins(0, mostra ? righello_->Altezza() : 0, 0, 0);
}

/// Cells and the room in them are the font's.
void txtTCP::CambiatoCarattere() {
  if (!AMisura()) return;
  const CampiAMisura& campi = misura_->Campi();
  const LettoreCampi lettore = misura_->Lettore();
  MostraAMisura(nullptr, lettore);
  MostraAMisura(&campi, lettore);
}

/// Not the base class's: it would draw the selection over the codes' own characters, which have no room.
void txtTCP::paintEvent(QPaintEvent* evento) {
  if (AMisura()) {
    DisegnaMisurata(evento->rect());
  } else {
    QPlainTextEdit::paintEvent(evento);
  }
  if (onde_ || trovati_) DisegnaSegni(evento->rect());
}

void txtTCP::DisegnaMisurata(const QRect& parte) {
  QPainter pittore(viewport());
  const int cursore = getPaintContext().cursorPosition;  // -1 while it does not show
  QPointF dove = contentOffset();
  for (QTextBlock riga = firstVisibleBlock(); riga.isValid() && dove.y() <= parte.bottom();
       riga = riga.next()) {
    const qreal altezza = blockBoundingRect(riga).height();
    if (dove.y() + altezza >= parte.top()) misura_->Disegna(pittore, riga, dove, *colori_);
    const int composto =
        riga.layout()->preeditAreaText().isEmpty() ? -1 : riga.layout()->preeditAreaPosition();
    const int nellaRiga = cursore < -1 ? composto - (cursore + 2) : cursore - riga.position();
    const bool qui = cursore < -1 ? composto >= 0 : cursore >= riga.position() && riga.contains(cursore);
    if (qui) {
      pittore.setPen(palette().color(QPalette::Text));
      riga.layout()->drawCursor(&pittore, dove, nellaRiga, cursorWidth());
    }
    dove.ry() += altezza;
  }
  if (righello_ != nullptr && righello_->isVisible()) {
    righello_->DisegnaGuide(pittore);
    righello_->update();
  }
  if (!bordo_) return;
  const QPointF alto(bordo_->X(misura_->Cella()), 0);
  pittore.setPen(QPen(palette().color(QPalette::Highlight), 1, Qt::DashLine));
  pittore.drawLine(alto, alto + QPointF(0, viewport()->height()));
}

void txtTCP::scrollContentsBy(int dx, int dy) {
  QPlainTextEdit::scrollContentsBy(dx, dy);
  if (fette_ != nullptr) fette_->PrimaCioCheSiVede();
}

/// The field behind the caret is marked: the line that the caret has left and the one that it has come to.
void txtTCP::RidisegnaRigaDelCursore() {
  const int riga = textCursor().blockNumber();
  for (const int quale : {std::exchange(rigaDelCursore_, riga), riga}) {
    const QTextBlock blocco = document()->findBlockByNumber(quale);
    if (!blocco.isValid()) continue;
    const QRectF posto = blockBoundingGeometry(blocco).translated(contentOffset());
    viewport()->update(QRectF(0, posto.top(), viewport()->width(), posto.height()).toAlignedRect());
  }
  if (textCursor().hasSelection()) viewport()->update();
}

void txtTCP::TieniFuoriDaiCampi() {
  const Cursore cursore = CursoreAttuale();
  const Cursore fuori = misura_->FuoriDaiCampi(cursore);
  if (fuori != cursore && !specchio_->AlLavoro()) return Poni(fuori);  // and comes back here
  RidisegnaRigaDelCursore();
}

/// A step to the left or to the right is one over a field.
bool txtTCP::PassaCampo(const QKeyEvent& evento) {
  if (!AMisura()) return false;
  const bool seleziona =
      evento.matches(QKeySequence::SelectNextChar) || evento.matches(QKeySequence::SelectPreviousChar);
  const bool avanti =
      evento.matches(QKeySequence::MoveToNextChar) || evento.matches(QKeySequence::SelectNextChar);
  if (!avanti && !seleziona && !evento.matches(QKeySequence::MoveToPreviousChar)) return false;
  const Cursore cursore = CursoreAttuale();
  if (!seleziona && cursore.Ancora != cursore.Posto) return false;  // to the selection's edge, as ever
  const auto campo = avanti ? misura_->CampoDopo(cursore.Posto) : misura_->CampoDavanti(cursore.Posto);
  if (!campo) return false;
  const std::size_t posto = avanti ? campo->Fine() : campo->Inizio;
  Poni({.Ancora = seleziona ? cursore.Ancora : posto, .Posto = posto});
  ensureCursorVisible();
  return true;
}

/// The marked one.
bool txtTCP::ApriCampoDopo() {
  const Cursore cursore = CursoreAttuale();
  if (!AMisura() || cursore.Ancora != cursore.Posto) return false;
  const auto campo = misura_->CampoDopo(cursore.Posto);
  if (campo) comandi_.ApriCodice(*campo);
  return campo.has_value();
}

std::optional<Selezione> txtTCP::CodiceA(QPoint punto) const {
  if (!AMisura()) return Punti().CodiceA(punto);
  const auto campo = misura_->CampoA(punto, contentOffset().x());
  if (!campo) return std::nullopt;
  return campo->Codice;
}

bool txtTCP::PremiBordo(const QMouseEvent& evento) {
  if (!AMisura() || evento.button() != Qt::LeftButton || viewport()->cursor().shape() != Qt::SplitHCursor)
    return false;
  const auto campo = misura_->BordoA(evento.pos(), contentOffset().x());
  if (campo) bordo_.emplace(*campo, comandi_.Testo().Byte(campo->Codice), evento.pos().x());
  return bordo_.has_value();
}

/// Shows at an edge that it can be dragged, and drags it.
bool txtTCP::MuoviBordo(const QMouseEvent& evento) {
  if (!AMisura()) return false;
  if (bordo_) {
    bordo_->Muovi(evento.pos().x(), misura_->Cella());
    QToolTip::showText(evento.globalPosition().toPoint(),
                       QStringLiteral("%1 \u2192 %2 caratteri").arg(bordo_->Prima()).arg(bordo_->Larghezza()),
                       viewport());
    viewport()->update();
    return true;
  }
  if (evento.buttons() != Qt::NoButton) return false;
  const auto campo = misura_->BordoA(evento.pos(), contentOffset().x());
  const auto cambia = [&] {
    const std::string codice = comandi_.Testo().Byte(campo->Codice);
    return misura_->Lettore().ConLarghezza(ContenutoDi(codice), 1).has_value();
  };
  const Qt::CursorShape forma = campo && cambia() ? Qt::SplitHCursor : Qt::IBeamCursor;
  if (viewport()->cursor().shape() != forma) viewport()->setCursor(forma);
  return false;
}

bool txtTCP::RilasciaBordo(const QMouseEvent& evento) {
  if (!bordo_ || evento.button() != Qt::LeftButton) return bordo_.has_value();
  const txtBordo bordo = *bordo_;
  LasciaBordo();
  if (bordo.Larghezza() == bordo.Prima() || comandi_.Testo().Byte(bordo.Dove()) != bordo.Codice())
    return true;
  const auto nuovo = misura_->Lettore().ConLarghezza(ContenutoDi(bordo.Codice()), bordo.Larghezza());
  if (nuovo) comandi_.CambiaCodice(bordo.Dove(), *nuovo);
  return true;
}

void txtTCP::LasciaBordo() {
  if (!bordo_) return;
  bordo_.reset();
  QToolTip::hideText();
  viewport()->update();
}

}  // namespace parvik

// The preview pane: rendered text with its formatting, to be read and selected, not edited. It draws the
// lines that show and nothing else, so that a preview of any size is there at once.
#pragma once

#include <QAbstractScrollArea>
#include <QPoint>
#include <QRect>
#include <cstddef>
#include <memory>
#include <optional>

#include "common/righello.h"
#include "output/SelezioneAnteprima.h"
#include "output/ricCelle.h"
#include "output/ricFoglio.h"
#include "output/ricLuoghi.h"
#include "output/ricVeduta.h"

namespace parvik {

class ricLampeggio;
class ricTrascinamento;

class ricAnte final : public QAbstractScrollArea {
  Q_OBJECT

 public:
  explicit ricAnte(QWidget* padre);

  /// Replaces the content. The caret is at the start, nothing is selected, and the start shows.
  void Mostra(Anteprima anteprima);

  /// Replaces the content by a longer one that begins with it. Caret, selection and what shows stay.
  void Completa(Anteprima anteprima);

  /// Replaces the content by what a later run has made. Caret, selection and what shows stay with their text,
  /// which has gone where `dove` says.
  void Rinnova(std::shared_ptr<const TestoAnteprima> testo, const Ricollocazione& dove);

  /// Content and selection; keeps the content when the pane shows another one.
  const SelezioneAnteprima& Scelta() const { return scelta_; }
  /// The text so many points larger than on paper (editor/Ingrandimento.h).
  void Ingrandisci(int passi);

  const TestoAnteprima& Contenuto() const { return scelta_.Testo(); }

  /// What is selected, in bytes of the text; the caret alone when nothing is.
  Selezione Selezionato() const { return scelta_.Selezionato(); }
  /// The caret's place.
  std::size_t Cursore() const { return scelta_.Estremi().Posto; }
  SelezioneAnteprima::Coordinate RigaColonna() const { return scelta_.RigaColonna(); }

  /// Selects from `ancora` to `cursore`, where the caret is then, and shows the caret. Places that the caret
  /// cannot stand at are moved to one.
  void Seleziona(std::size_t ancora, std::size_t cursore);

  void SelezionaTutto();

  /// The sheet that the text is looked at on.
  void MostraFoglio(const Foglio& foglio);
  /// What there is to say of it; nullopt without one.
  const std::optional<MisuraFoglio>& SulFoglio() const { return foglio_.Misurato(); }

  /// A ruler above the text.
  void MostraRighello(bool mostra);
  /// nullptr until it was first shown.
  righello* Righello() const { return righello_; }

  /// Puts the selected text on the clipboard, lines separated by line feeds. Without a selection nothing.
  void Copia() const;

  // In the viewport's coordinates.

  /// The character at a place of the caret; estimated for a line that does not show.
  QRect RettangoloDi(std::size_t byte) const;
  /// The place whose character covers a point of the viewport.
  std::size_t CarattereA(QPoint punto) const;
  /// Scrolls as little as shows the place.
  void Rivela(std::size_t byte);

  /// Marks these places of the content, until it is another one. Whether they are others than before.
  bool MostraSegni(SegniAnteprima segni);
  /// Marks what was found, or no longer: an empty function. It is asked whenever they are drawn.
  void MostraTrovati(LettoreTrovati trovati);
  /// Scrolls to a mark, where none shows.
  void RivelaSegni();

 signals:
  /// The pane was clicked, or an arrow key was released in it.
  void CursoreMosso();
  /// The content is another one, or longer.
  void Mostrata();
  /// One wants to find something here.
  void RicercaChiesta();
  /// The text that a byte of the content comes from is asked for.
  void OrigineChiesta(std::size_t byte);

 protected:
  bool event(QEvent* evento) override;
  void changeEvent(QEvent* evento) override;
  void paintEvent(QPaintEvent* evento) override;
  void resizeEvent(QResizeEvent* evento) override;
  void scrollContentsBy(int dx, int dy) override;
  void showEvent(QShowEvent* evento) override;
  void focusInEvent(QFocusEvent* evento) override;
  void focusOutEvent(QFocusEvent* evento) override;
  void keyPressEvent(QKeyEvent* evento) override;
  void keyReleaseEvent(QKeyEvent* evento) override;
  void mousePressEvent(QMouseEvent* evento) override;
  void mouseMoveEvent(QMouseEvent* evento) override;
  void mouseReleaseEvent(QMouseEvent* evento) override;
  void mouseDoubleClickEvent(QMouseEvent* evento) override;
  void contextMenuEvent(QContextMenuEvent* evento) override;

 private:
  VedutaAnteprima Veduta() const;
  void Rimisura();
  void RimisuraSeDiverso();
  void MisuraLarghezza();
  void AggiornaBarre();
  void MettiInAlto(std::size_t byte);
  void MostraMossa(const SelezioneAnteprima& prima);
  void AggiornaSegni();

  static bool Riconosce(const QKeyEvent& evento);
  void Muovi(Movimento dove, ModoMovimento modo);
  void SelezionaFra(const Selezione& dal, const Selezione& al);
  int RighePerPagina() const;
  void Scorri(int righe, int pixel);
  void OffriSelezione() const;

  SelezioneAnteprima scelta_;  // what is shown, too
  ricLuoghi luoghi_;
  LettoreTrovati trovati_;
  ricFoglio foglio_;
  std::optional<Celle> celle_;
  qreal rapporto_ = 0;  // the device's pixel ratio and resolution that the cells were made for
  int risoluzione_ = 0;
  double scala_ = 1;
  int larghezza_ = 0;  // of the widest line, in pixels

  ricLampeggio* lampeggio_ = nullptr;
  ricTrascinamento* trascinamento_ = nullptr;
  righello* righello_ = nullptr;
};

}  // namespace parvik

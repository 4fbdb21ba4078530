// A drag with the left button in the preview pane: what it selects by and from where, and the text that
// scrolls along while the mouse is held outside.
#pragma once

#include <QBasicTimer>
#include <QElapsedTimer>
#include <QObject>
#include <QPoint>
#include <cstddef>
#include <functional>
#include <optional>

#include "output/ricVeduta.h"
#include "template/Modifica.h"

namespace parvik {

/// Selects nothing by itself, but says what is to be selected. Points are those of the view, and may lie
/// outside of it.
class ricTrascinamento final : public QObject {
  Q_OBJECT

 public:
  /// What shows at the moment. Asked during each of the calls below, and whenever the text scrolls along.
  using Sguardo = std::function<VedutaAnteprima()>;

  ricTrascinamento(Sguardo veduta, QObject* padre);

  /// The button is down. Selects by lines when this is the third click of a row, or else by characters: from
  /// `ancora`, or without it from the place at `punto`.
  void Premi(QPoint punto, std::optional<std::size_t> ancora);
  /// It is down for the second time of a row. Selects by words.
  void PremiAncora(QPoint punto);
  /// The mouse has moved with the button down. Does nothing when no drag is on.
  void Muovi(QPoint punto);
  /// Returns whether a drag was on.
  bool Finisci();

 signals:
  /// Both pieces and what lies between them are to be selected, the caret on the side of `al`.
  void DaSelezionare(const parvik::Selezione& dal, const parvik::Selezione& al);
  /// The text is to be scrolled on, or back by what is negative. Done before the signal returns.
  void DaScorrere(int righe, int pixel);

 protected:
  void timerEvent(QTimerEvent* evento) override;

 private:
  enum class Grana { Carattere, Parola, Riga };  // what it selects by

  bool TerzoDiFila(QPoint punto) const;
  void Inizia(QPoint punto, Grana grana, std::optional<std::size_t> ancora);
  Selezione PezzoA(QPoint punto) const;
  void Estendi(QPoint punto);
  void ScorriOltre();

  Sguardo veduta_;
  Grana grana_ = Grana::Carattere;
  Selezione inizio_;             // the piece that it began with
  std::optional<QPoint> punto_;  // where the mouse is; none: no drag is on
  QBasicTimer scorrimento_;
  QElapsedTimer dopoDoppio_;
  QPoint puntoDoppio_;
};

}  // namespace parvik

// A ruler of columns above the text of a box, inside the box's margins; guides are set and taken away by
// clicks on it (docs/campi.md).
#pragma once

#include <QAbstractScrollArea>
#include <QWidget>
#include <cstddef>
#include <functional>
#include <vector>

class QPainter;

namespace parvik {

/// Where a box draws its columns, in pixels of its viewport.
struct GrigliaColonne {
  qreal Origine = 0;  // the left edge of the first column
  qreal Cella = 1;
  qreal Cursore = 0;  // where the caret is

  /// The left edge of a column, from 0.
  qreal Sinistra(std::size_t colonna) const { return Origine + static_cast<qreal>(colonna) * Cella; }
};

class righello final : public QWidget {
  Q_OBJECT

 public:
  using Griglia = std::function<GrigliaColonne()>;

  /// `scatola` owns it, and has a margin of Altezza() above its viewport while this is shown.
  righello(const QString& nome, const QString& nomeAccessibile, QAbstractScrollArea& scatola,
           Griglia griglia);

  int Altezza() const;

  /// Columns from 0, each at the left edge of one.
  void ImpostaGuide(std::vector<std::size_t> guide);
  /// Through the viewport of the box, from top to bottom.
  void DisegnaGuide(QPainter& pittore) const;

 signals:
  /// A column was clicked, from 0.
  void Cliccata(std::size_t colonna);

 protected:
  bool eventFilter(QObject* oggetto, QEvent* evento) override;
  void paintEvent(QPaintEvent* evento) override;
  void mousePressEvent(QMouseEvent* evento) override;

 private:
  void Colloca();
  void DisegnaGuide(QPainter& pittore, const QColor& colore, int altezza) const;
  void DisegnaColonne(QPainter& pittore, const GrigliaColonne& griglia, const QColor& colore) const;

  QAbstractScrollArea& scatola_;
  Griglia griglia_;
  std::vector<std::size_t> guide_;
};

}  // namespace parvik

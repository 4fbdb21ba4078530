// A field of the status bar: its whole text for those who ask, as much of it as there is room for on the
// screen. A text that is much like the one before it costs next to nothing: only the characters that are
// other ones are drawn.
#pragma once

#include <QLabel>
#include <QList>
#include <QRawFont>

namespace parvik {

class lblBarra final : public QLabel {
  Q_OBJECT

 public:
  /// Where the mark of what is left out stands.
  lblBarra(const char* nome, Qt::TextElideMode taglio, QWidget* padre);

  /// What does not fit whole is the tooltip.
  void Scrivi(const QString& testo);
  /// Place and size, both fixed: a new text of a fixed field lays nothing out anew.
  void Poni(const QRect& posto);
  /// How wide the whole text is.
  int LarghezzaTesto() const { return intero_; }

 protected:
  void changeEvent(QEvent* evento) override;
  void paintEvent(QPaintEvent* evento) override;

 private:
  void Componi();
  QRect Diverso(const QList<quint32>& prima, const QList<qreal>& postiPrima) const;

  Qt::TextElideMode taglio_;
  QRawFont segni_;
  QString mostrato_;
  int intero_ = 0;
  QList<quint32> glifi_;  // of what is shown; none where the font lacks one of them
  QList<qreal> posti_;    // their left edges, and the right one of the last
};

}  // namespace parvik

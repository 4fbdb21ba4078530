// A notice in one line: where there is little room, the name in it is shortened.
#pragma once

#include <QLabel>

namespace parvik {

class lblNotizia final : public QLabel {
  Q_OBJECT

 public:
  explicit lblNotizia(QWidget* padre);

  /// What is said, `nome` in the middle of it; the tooltip is `intero`. All of it is the label's text,
  /// whatever there is room for.
  void Scrivi(const QString& prima, const QString& nome, const QString& dopo, const QString& intero);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* evento) override;

 private:
  QString Mostrato() const;

  QString prima_;
  QString nome_;
  QString dopo_;
};

}  // namespace parvik

// A bar above the sections that tells something and offers what can be done about it, without getting in
// anybody's way (docs/notizie.md).
#pragma once

#include <QMainWindow>
#include <QPointer>
#include <QPushButton>
#include <QToolBar>

#include "app/lblNotizia.h"

namespace parvik {

class barNotizia final : public QToolBar {
  Q_OBJECT

 public:
  /// In a row of its own below the window's other bars, hidden.
  barNotizia(const char* nome, const QString& nomeAccessibile, QMainWindow& finestra);

  QPushButton& Aggiungi(const char* nome, const QString& didascalia);

  /// Shows the notice, and tells assistive technologies of it. The focus stays where it is.
  void Mostra(const QString& prima, const QString& nome, const QString& dopo, const QString& intero);
  /// Hides it. A focus that it had goes back to where it came from.
  void Nascondi();

 signals:
  /// Escape was pressed in it.
  void Rinunciato();

 protected:
  void changeEvent(QEvent* evento) override;
  void keyPressEvent(QKeyEvent* evento) override;

 private:
  void Colora();
  void NotaFuoco(QWidget* prima, QWidget* ora);
  bool Contiene(const QWidget* chi) const { return chi != nullptr && isAncestorOf(chi); }

  QWidget* dentro_;
  lblNotizia* lblNotizia_;
  QPointer<QWidget> daDove_;  // had the focus before the bar
};

}  // namespace parvik

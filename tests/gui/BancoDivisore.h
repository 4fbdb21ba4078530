// The boundary between sections and preview under a mouse.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QMouseEvent>
#include <optional>

#include "Finestra.h"

namespace parvik::prova {

/// The boundary under a mouse. Points are those of the window's inner area.
class QtDivisore : public testing::Test {
 protected:
  QtDivisore() { finestra_.Scegli(1); }
  ~QtDivisore() override {
    while (QApplication::overrideCursor() != nullptr) QApplication::restoreOverrideCursor();
  }

  QWidget& Pannello() { return *Trova<QWidget>(*finestra_, "ricAnte"); }
  QPlainTextEdit& Testata() { return finestra_.Sezione(0); }
  QWidget& Area() { return *Pannello().parentWidget(); }
  int Bordo() { return Pannello().x(); }

  static std::optional<Qt::CursorShape> Puntatore() {
    const QCursor* puntatore = QApplication::overrideCursor();
    return puntatore == nullptr ? std::nullopt : std::optional(puntatore->shape());
  }

  /// The widget that a mouse at this point is over.
  QWidget& Sotto(QPoint punto) {
    QWidget* trovato = Area().childAt(punto);
    return trovato == nullptr ? Area() : *trovato;
  }

  void Manda(QEvent::Type tipo, QPoint punto, Qt::MouseButton tasto, Qt::MouseButtons premuti, QWidget& chi) {
    const QPoint globale = Area().mapToGlobal(punto);
    QMouseEvent evento(tipo, chi.mapFromGlobal(globale), globale, tasto, premuti, Qt::NoModifier);
    QApplication::sendEvent(&chi, &evento);
  }
  void Muovi(QPoint punto, Qt::MouseButtons premuti = Qt::NoButton) {
    Manda(QEvent::MouseMove, punto, Qt::NoButton, premuti, Sotto(punto));
  }
  void Premi(QPoint punto, Qt::MouseButton tasto = Qt::LeftButton) {
    Manda(QEvent::MouseButtonPress, punto, tasto, tasto, Sotto(punto));
  }
  void Lascia(QPoint punto, Qt::MouseButton tasto = Qt::LeftButton) {
    Manda(QEvent::MouseButtonRelease, punto, tasto, Qt::NoButton, Sotto(punto));
  }
  /// Over the left edge, pressed there.
  void Afferra() {
    Muovi({Bordo(), 200});
    ASSERT_EQ(Puntatore(), Qt::SizeHorCursor);
    Premi({Bordo(), 200});
  }

  Finestra finestra_;
};

}  // namespace parvik::prova

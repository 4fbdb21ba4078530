// A preview pane alone in its window.
#pragma once

#include <gtest/gtest.h>

#include <QTest>
#include <string>
#include <string_view>

#include "output/MettiStili.h"
#include "output/ricAnte.h"
#include "supporto/NomeSelezione.h"

namespace parvik::prova {

/// A preview of a text with style markers in it.
inline Anteprima DiProva(std::string testo) {
  Anteprima anteprima{.Testo = std::move(testo), .Tratti = {}};
  anteprima.Tratti = MettiStili(anteprima.Testo);
  return anteprima;
}

inline std::string Ripeti(std::string_view testo, std::size_t volte) {
  std::string ripetuto;
  ripetuto.reserve(testo.size() * volte);
  for (std::size_t i = 0; i < volte; ++i) ripetuto += testo;
  return ripetuto;
}

class Pannello {
 public:
  explicit Pannello(std::string testo) {
    pannello_.resize(400, 300);
    pannello_.Mostra(DiProva(std::move(testo)));
    pannello_.show();
    pannello_.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&pannello_));
    pannello_.setFocus();
  }

  ricAnte& operator*() { return pannello_; }
  ricAnte* operator->() { return &pannello_; }

  void Premi(Qt::Key tasto, Qt::KeyboardModifiers modificatori = {}) {
    QTest::keyClick(&pannello_, tasto, modificatori);
  }

  /// The middle of the character at a place, in the viewport.
  QPoint Su(std::size_t byte) const { return pannello_.RettangoloDi(byte).center(); }

 private:
  ricAnte pannello_{nullptr};
};

}  // namespace parvik::prova

// What the tests of the code dialogs have in common.
#pragma once

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <string>
#include <vector>

#include "Finestra.h"
#include "tokens/Codice.h"
#include "tokens/frmCodice.h"

namespace parvik::prova {

using Codici = std::vector<std::string>;

inline QLineEdit& Casella(const QDialog& dialogo, const char* nome) {
  return *Trova<QLineEdit>(dialogo, nome);
}

inline void Apri(QDialog& dialogo) {
  dialogo.show();
  dialogo.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&dialogo));
}

/// Clicks OK; what the dialog hands over.
inline Codici Conferma(frmCodice& dialogo) {
  QTest::mouseClick(Trova<QPushButton>(dialogo, "cmdOk"), Qt::LeftButton);
  EXPECT_FALSE(dialogo.isVisible());
  return dialogo.Codici();
}

}  // namespace parvik::prova

// What every window owes to keyboards, eyes and screen readers (docs/accessibilita.md).
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QDockWidget>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QStatusBar>
#include <QTest>
#include <QToolBar>
#include <algorithm>
#include <set>
#include <vector>

#include "Finestra.h"
#include "OgniFinestra.h"
#include "app/lblNotizia.h"

namespace parvik {
namespace {

using prova::Finestra;
using prova::PerOgniFinestra;

std::string Chi(const QWidget& controllo) {
  return controllo.objectName().toStdString() + " (" + controllo.metaObject()->className() + ")";
}

std::string Chi(const QAccessibleInterface& nodo) {
  const auto* controllo = qobject_cast<const QWidget*>(nodo.object());
  return (controllo == nullptr ? "a part" : Chi(*controllo)) + " role " + std::to_string(nodo.role());
}

/// The node and all below it that can be seen; of a table or a list the first few of its cells.
void PerOgniNodo(QAccessibleInterface& nodo, const std::function<void(QAccessibleInterface&)>& prova) {
  constexpr int Celle = 60;
  if (nodo.state().invisible) return;
  prova(nodo);
  const int figli = nodo.tableInterface() == nullptr ? nodo.childCount() : std::min(nodo.childCount(), Celle);
  for (int i = 0; i < figli; ++i)
    if (QAccessibleInterface* figlio = nodo.child(i)) PerOgniNodo(*figlio, prova);
}

TEST(OgniFinestra, NamesWhateverCanHaveTheFocusAndTellsItsRole) {
  const std::set<QAccessible::Role> diChiunque = {QAccessible::NoRole, QAccessible::Client, QAccessible::Pane,
                                                  QAccessible::Window, QAccessible::Grouping};
  int provati = 0;
  PerOgniFinestra([&](const std::string& nome, QWidget& finestra) {
    SCOPED_TRACE(nome);
    PerOgniNodo(*QAccessible::queryAccessibleInterface(&finestra), [&](QAccessibleInterface& nodo) {
      if (!nodo.state().focusable) return;
      ++provati;
      EXPECT_NE(nodo.text(QAccessible::Name).trimmed(), "") << Chi(nodo);
      EXPECT_FALSE(diChiunque.contains(nodo.role())) << Chi(nodo);
    });
  });
  EXPECT_GT(provati, 100);
}

/// Where the Tab key stops, in its order.
std::vector<QWidget*> Fermate(QWidget& finestra) {
  std::vector<QWidget*> fermate;
  for (QWidget* qui = finestra.nextInFocusChain(); qui != &finestra; qui = qui->nextInFocusChain()) {
    const bool ferma = (qui->focusPolicy() & Qt::TabFocus) == Qt::TabFocus && qui->focusProxy() == nullptr &&
                       qui->isVisibleTo(&finestra) && qui->isEnabled() && finestra.isAncestorOf(qui);
    if (ferma) fermate.push_back(qui);
  }
  return fermate;
}

/// A bar or a panel of the main window is read by itself, wherever it stands.
const QWidget* Zona(const QWidget* controllo) {
  while (!controllo->isWindow() && qobject_cast<const QDockWidget*>(controllo) == nullptr &&
         qobject_cast<const QToolBar*>(controllo) == nullptr &&
         qobject_cast<const QStatusBar*>(controllo) == nullptr)
    controllo = controllo->parentWidget();
  return controllo;
}

TEST(OgniFinestra, HasItsTabStopsInTheOrderOfReading) {
  PerOgniFinestra([](const std::string& nome, QWidget& finestra) {
    SCOPED_TRACE(nome);
    const std::vector<QWidget*> fermate = Fermate(finestra);
    for (std::size_t i = 1; i < fermate.size(); ++i) {
      if (Zona(fermate[i - 1]) != Zona(fermate[i])) continue;
      const QPoint prima = fermate[i - 1]->mapTo(&finestra, fermate[i - 1]->rect().center());
      const QPoint dopo = fermate[i]->mapTo(&finestra, QPoint());
      const bool sotto = prima.y() < dopo.y() + fermate[i]->height() && prima.x() < dopo.x();
      const bool colonnaDopo = prima.x() < dopo.x();
      const bool rigaDopo = prima.y() < dopo.y();
      EXPECT_TRUE(sotto || colonnaDopo || rigaDopo) << Chi(*fermate[i]) << " after " << Chi(*fermate[i - 1]);
    }
  });
}

QImage Ritratto(QWidget& finestra, const QWidget& controllo) {
  constexpr int Intorno = 4;  // pixels
  const QRect posto(controllo.mapTo(&finestra, QPoint()), controllo.size());
  return finestra.grab(posto.adjusted(-Intorno, -Intorno, Intorno, Intorno)).toImage();
}

TEST(OgniFinestra, ShowsWhereTheFocusIs) {
  const int lampeggio = QApplication::cursorFlashTime();
  QApplication::setCursorFlashTime(0);
  PerOgniFinestra([](const std::string& nome, QWidget& finestra) {
    SCOPED_TRACE(nome);
    const std::vector<QWidget*> fermate = Fermate(finestra);
    if (fermate.size() < 2) return;
    finestra.window()->setAttribute(Qt::WA_KeyboardFocusChange);  // as after the first Tab
    for (std::size_t i = 0; i < fermate.size(); ++i) {
      QWidget& controllo = *fermate[i];
      fermate[(i + 1) % fermate.size()]->setFocus(Qt::TabFocusReason);
      Finestra::Calma();
      const QImage senza = Ritratto(finestra, controllo);
      finestra.window()->setAttribute(Qt::WA_KeyboardFocusChange);
      controllo.setFocus(Qt::TabFocusReason);
      Finestra::Calma();
      ASSERT_TRUE(controllo.hasFocus()) << Chi(controllo);
      EXPECT_NE(Ritratto(finestra, controllo), senza) << Chi(controllo);
    }
  });
  QApplication::setCursorFlashTime(lampeggio);
}

constexpr int Bordi = 8;  // pixels beside the caption of a button

/// What has less room than its text takes. A news bar and the status bar shorten their texts by themselves.
bool EMozzato(const QWidget& controllo) {
  if (qobject_cast<const lblNotizia*>(&controllo) != nullptr ||
      qobject_cast<const QStatusBar*>(Zona(&controllo)))
    return false;
  const auto* etichetta = qobject_cast<const QLabel*>(&controllo);
  const auto* gruppo = qobject_cast<const QGroupBox*>(&controllo);
  const auto* pulsante = qobject_cast<const QAbstractButton*>(&controllo);
  if (etichetta == nullptr && gruppo == nullptr && (pulsante == nullptr || pulsante->text().isEmpty()))
    return false;
  if (etichetta != nullptr && etichetta->text().isEmpty()) return false;
  if (etichetta != nullptr && etichetta->wordWrap())
    return etichetta->height() < etichetta->heightForWidth(etichetta->width());
  if (const auto* bottone =
          qobject_cast<const QPushButton*>(&controllo)) {  // its hint is larger than it need be
    const QSize testo = bottone->fontMetrics().size(Qt::TextShowMnemonic, bottone->text());
    return bottone->width() < testo.width() + Bordi || bottone->height() < testo.height();
  }
  const QSize serve = gruppo != nullptr ? gruppo->minimumSizeHint() : controllo.sizeHint();
  return controllo.width() < serve.width() || controllo.height() + 1 < serve.height();
}

void NessunaDidascaliaMozzata() {
  PerOgniFinestra([](const std::string& nome, QWidget& finestra) {
    SCOPED_TRACE(nome);
    int provate = 0;
    for (const auto* controllo : finestra.findChildren<QWidget*>()) {
      if (!controllo->isVisibleTo(&finestra)) continue;
      ++provate;
      EXPECT_FALSE(EMozzato(*controllo))
          << Chi(*controllo) << ' ' << controllo->width() << 'x' << controllo->height() << " for "
          << controllo->sizeHint().width() << 'x' << controllo->sizeHint().height();
    }
    EXPECT_GT(provate, 0);
  });
}

TEST(OgniFinestra, CutsNoCaption) {
  NessunaDidascaliaMozzata();
}

TEST(OgniFinestra, CutsNoCaptionInAFontOfTwentyPoints) {
  const QFont usuale = QApplication::font();
  QFont grande = usuale;
  constexpr int Punti = 20;
  grande.setPointSize(Punti);
  QApplication::setFont(grande);
  NessunaDidascaliaMozzata();
  QApplication::setFont(usuale);
}

}  // namespace
}  // namespace parvik

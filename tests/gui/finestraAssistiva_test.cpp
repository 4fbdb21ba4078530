// A section of the main window as assistive technologies read and edit it.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QTest>

#include "Finestra.h"
#include "common/qtTesto.h"

namespace parvik {
namespace {

using prova::Finestra;

void ImpostaTesto(QPlainTextEdit& editor, const char* utf8) {
  editor.setPlainText(QString::fromUtf8(utf8));
}

class FinestraAssistiva : public testing::Test {
 protected:
  FinestraAssistiva() {
    finestra_.Scegli(12);
    interfaccia_ = QAccessible::queryAccessibleInterface(&finestra_.Sezione(0));
  }
  std::string Testo() { return DaSchermo(finestra_.Sezione(0).toPlainText()); }

  Finestra finestra_;
  QAccessibleInterface* interfaccia_ = nullptr;
};

TEST_F(FinestraAssistiva, ReadsTheSectionAsAnEditableText) {
  ImpostaTesto(finestra_.Sezione(0), "ab\n«V1»");
  ASSERT_NE(interfaccia_, nullptr);
  EXPECT_EQ(interfaccia_->role(), QAccessible::EditableText);
  EXPECT_EQ(interfaccia_->text(QAccessible::Name), "Testata");
  EXPECT_EQ(interfaccia_->text(QAccessible::Value), QString::fromUtf8("ab\n«V1»"));
  EXPECT_EQ(interfaccia_->textInterface()->text(0, 3), "ab\n");
  EXPECT_EQ(interfaccia_->textInterface()->characterCount(), 7);
  EXPECT_TRUE(interfaccia_->state().editable);
}

TEST_F(FinestraAssistiva, InsertedTextIsTypedFullStopsAreNot) {
  ImpostaTesto(finestra_.Sezione(0), "ab");
  interfaccia_->editableTextInterface()->insertText(1, "x.y");
  EXPECT_EQ(Testo(), "axyb");
}

TEST_F(FinestraAssistiva, DeletingCannotCutACodeInHalf) {
  ImpostaTesto(finestra_.Sezione(0), "ab«V1;2L»c");
  interfaccia_->editableTextInterface()->deleteText(0, 4);
  EXPECT_EQ(Testo(),
            "ab\xAB"
            "V1;2L\xBB"
            "c");
  interfaccia_->editableTextInterface()->deleteText(0, 9);
  EXPECT_EQ(Testo(), "c");
}

TEST_F(FinestraAssistiva, AWholeTextWithCodesIsReplacedAtOnce) {
  ImpostaTesto(finestra_.Sezione(0), "ab");
  interfaccia_->editableTextInterface()->replaceText(0, 2, QString::fromUtf8("«V8;9R;.0;0»\nfine."));
  EXPECT_EQ(Testo(),
            "\xAB"
            "V8;9R;.0;0\xBB\r\nfine.");
}

TEST_F(FinestraAssistiva, ATextThatBeginsWithACodeIsReplacedWithoutADialog) {
  for (const char* prima : {"«V1;2L» abc", "«V1;2L»", "abc", "", "«V1 aperto\nabc «V2»"}) {
    for (const char* dopo : {"uno. due", "«V8;9R;.0;0» fine.\nx", ""}) {
      ImpostaTesto(finestra_.Sezione(0), prima);
      interfaccia_->editableTextInterface()->replaceText(0, interfaccia_->textInterface()->characterCount(),
                                                         QString::fromUtf8(dopo));
      EXPECT_EQ(finestra_.Sezione(0).toPlainText(), QString::fromUtf8(dopo)) << prima;
    }
  }
}

TEST_F(FinestraAssistiva, NoEditOpensADialogOrLeavesHalfACode) {
  ImpostaTesto(finestra_.Sezione(0), "ab«V1;2L»c");
  QAccessibleEditableTextInterface* testo = interfaccia_->editableTextInterface();
  for (int inizio = 0; inizio <= 10; ++inizio) {
    for (int fine = inizio; fine <= 10; ++fine) {
      ImpostaTesto(finestra_.Sezione(0), "ab«V1;2L»c");
      testo->deleteText(inizio, fine);
      const QString resta = finestra_.Sezione(0).toPlainText();
      EXPECT_EQ(resta.count(u'«'), resta.count(u'»')) << inizio << ' ' << fine;
      EXPECT_EQ(resta.contains(u'«'), resta.contains("«V1;2L»")) << inizio << ' ' << fine;
      testo->replaceText(inizio, fine, "z");
    }
    testo->insertText(inizio, "p q");
  }
  ImpostaTesto(finestra_.Sezione(0), "«V1;2L»");
  testo->insertText(3, "p q");
  EXPECT_EQ(finestra_.Sezione(0).toPlainText(), "«V1pq;2L»") << "a space is not typed inside a code";
}

TEST_F(FinestraAssistiva, TheCodeAtTheCaretIsToldInWords) {
  const auto detto = [this] { return interfaccia_->text(QAccessible::Description); };
  ImpostaTesto(finestra_.Sezione(0), "ab «V1;9L» c");
  const auto vaiA = [this](int posto) { interfaccia_->textInterface()->setCursorPosition(posto); };
  vaiA(1);
  EXPECT_EQ(detto(), "");
  vaiA(5);
  EXPECT_TRUE(detto().startsWith("Variabile 1")) << detto().toStdString();
  EXPECT_TRUE(detto().contains("9 caratteri a sinistra")) << detto().toStdString();
  vaiA(3);
  EXPECT_TRUE(detto().startsWith("Variabile 1")) << "in front of it, where Delete takes it away";
  vaiA(12);
  EXPECT_EQ(detto(), "");
  vaiA(4);
  interfaccia_->editableTextInterface()->replaceText(3, 10, QString::fromUtf8("«S;NORMALE»"));
  EXPECT_TRUE(detto().startsWith("Stile")) << detto().toStdString();
}

TEST_F(FinestraAssistiva, AnEditMakesTheTemplateModified) {
  interfaccia_->editableTextInterface()->insertText(0, "x");
  finestra_.Persona().Rispondera(Risposta::Annulla);
  EXPECT_FALSE(finestra_->close());
}

}  // namespace
}  // namespace parvik

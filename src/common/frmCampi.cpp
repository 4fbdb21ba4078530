#include "common/frmCampi.h"

#include <QFocusEvent>
#include <QFontDatabase>
#include <QKeyEvent>
#include <QLineEdit>
#include <QValidator>
#include <algorithm>
#include <iterator>
#include <limits>
#include <utility>

namespace parvik {
namespace {

class AlFuoco final : public QObject {
 public:
  explicit AlFuoco(QLineEdit& campo) : QObject(&campo), campo_(campo) { campo.installEventFilter(this); }

  bool eventFilter(QObject* oggetto, QEvent* evento) override {
    if (evento->type() == QEvent::FocusIn) Ricevuto(static_cast<QFocusEvent*>(evento)->reason());
    if (evento->type() == QEvent::MouseButtonRelease) Rilasciato();
    return QObject::eventFilter(oggetto, evento);
  }

 private:
  void Ricevuto(Qt::FocusReason motivo) {
    colMouse_ = motivo == Qt::MouseFocusReason;
    // The context menu gives the focus back before its command runs: what is selected stays selected.
    if (!colMouse_ && motivo != Qt::PopupFocusReason) campo_.selectAll();
  }

  // A press puts the caret somewhere, and a drag selects: a click is known when the button comes up.
  void Rilasciato() {
    if (std::exchange(colMouse_, false) && !campo_.hasSelectedText()) campo_.selectAll();
  }

  QLineEdit& campo_;
  bool colMouse_ = false;  // the focus came by a press that still lasts
};

/// Control with a letter writes nothing, whatever text comes with it; with Alt it may be the third level of a
/// keyboard.
bool EUnComando(const QKeyEvent& tasto) {
  return (tasto.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) == Qt::ControlModifier;
}

/// Watches over what comes in; what is in the box is left alone.
class Filtro final : public QValidator {
 public:
  Filtro(QLineEdit& campo, int massimo, QString altri)
      : QValidator(&campo), campo_(campo), massimo_(massimo), altri_(std::move(altri)), prima_(campo.text()) {
    campo.installEventFilter(this);
    connect(&campo, &QLineEdit::textChanged, this, [this](const QString& testo) { prima_ = testo; });
  }

  void AmmettiComeSta(const QString& testo) { comeSta_ = testo; }

  /// A key that writes nothing must not remove the selection either.
  bool eventFilter(QObject* oggetto, QEvent* evento) override {
    const bool tasto = evento->type() == QEvent::KeyPress;
    if (tasto && ScriveInvano(*static_cast<QKeyEvent*>(evento))) return true;
    return QValidator::eventFilter(oggetto, evento);
  }

  State validate(QString& testo, int& cursore) const override {
    if (testo == prima_ || testo == comeSta_) return Acceptable;
    // What came in ends at the caret; the texts on both sides of it were there.
    const QStringView finoAlCursore = QStringView(testo).first(cursore);
    const QString dopo = testo.mid(cursore);
    const qsizetype inizio = InizioComune(finoAlCursore, dopo.size());
    const QString dentro = testo.left(inizio);
    const QStringView entrato = finoAlCursore.sliced(inizio);
    const QString ammesso = Entrano(entrato, inizio + dopo.size());
    const bool rifiutato = ammesso.isEmpty() && !entrato.isEmpty();
    testo = rifiutato ? prima_ : dentro + ammesso + dopo;
    cursore = static_cast<int>(inizio + ammesso.size());
    return Acceptable;
  }

 private:
  bool ScriveInvano(const QKeyEvent& tasto) const {
    const QString scritto = tasto.text();
    if (EUnComando(tasto) || scritto.isEmpty() || !scritto.front().isPrint()) return false;
    return Entrano(scritto, campo_.text().size() - campo_.selectedText().size()).isEmpty();
  }

  /// What of `nuovo` may stand beside the `resto` characters that stay. A text that was too long from the
  /// start may only get shorter.
  QString Entrano(QStringView nuovo, qsizetype resto) const {
    QString ammessi;
    std::copy_if(nuovo.begin(), nuovo.end(), std::back_inserter(ammessi),
                 [this](QChar c) { return Ammesso(c); });
    const qsizetype limite = std::max<qsizetype>(massimo_, prima_.size() - 1);
    return ammessi.left(std::max<qsizetype>(limite - resto, 0));
  }

  /// How many characters of `testo` stood at the start of the text before, in front of its last `dopo` ones.
  qsizetype InizioComune(QStringView testo, qsizetype dopo) const {
    const qsizetype fine = std::min(testo.size(), std::max<qsizetype>(prima_.size() - dopo, 0));
    return std::mismatch(testo.begin(), testo.begin() + fine, prima_.begin()).first - testo.begin();
  }

  bool Ammesso(QChar c) const { return (c >= u'0' && c <= u'9') || altri_.contains(c); }

  QLineEdit& campo_;
  int massimo_;
  QString altri_;
  QString prima_;    // the text before the edit
  QString comeSta_;  // what ImpostaComeSta put there: undoing may bring it back
};

/// Nobody can edit a disabled box, but everybody should be able to read the code in it.
class Leggibile final : public QObject {
 public:
  explicit Leggibile(QLineEdit& campo) : QObject(&campo), campo_(campo) {
    campo.installEventFilter(this);
    Aggiorna();
  }

  bool eventFilter(QObject* oggetto, QEvent* evento) override {
    if (evento->type() == QEvent::PaletteChange) Aggiorna();
    return QObject::eventFilter(oggetto, evento);
  }

 private:
  void Aggiorna() {
    const QBrush testo = campo_.palette().brush(QPalette::Active, QPalette::WindowText);
    if (campo_.palette().brush(QPalette::Disabled, QPalette::Text) == testo) return;
    QPalette tavolozza;
    tavolozza.setBrush(QPalette::Disabled, QPalette::Text, testo);
    campo_.setPalette(tavolozza);
  }

  QLineEdit& campo_;
};

}  // namespace

void SelezionaTuttoAlFuoco(QLineEdit& campo) {
  new AlFuoco(campo);  // the box owns it
}

void SoloCifre(QLineEdit& campo, int massimo, const QString& altri) {
  campo.setMaxLength(std::numeric_limits<int>::max());  // the filter counts
  campo.setValidator(new Filtro(campo, massimo, altri));
}

void RendiLeggibile(QLineEdit& campo) {
  new Leggibile(campo);  // the box owns it
}

void MostraCodici(QLineEdit& campo) {
  campo.setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  RendiLeggibile(campo);
}

void ImpostaComeSta(QLineEdit& campo, const QString& testo) {
  const QValidator* validatore = campo.validator();
  if (auto* filtro = dynamic_cast<Filtro*>(const_cast<QValidator*>(validatore)))
    filtro->AmmettiComeSta(testo);
  campo.setValidator(nullptr);
  campo.setText(testo);
  campo.setValidator(validatore);
}

}  // namespace parvik

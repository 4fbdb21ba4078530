#include "common/qtCampi.h"

#include <QFocusEvent>
#include <QFontDatabase>
#include <QLineEdit>
#include <utility>

#include "common/qtFiltro.h"
#include "common/qtTesto.h"

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

void Filtra(QLineEdit& campo, int massimo, qtFiltro::Regola regola) {
  new qtFiltro(campo, massimo, std::move(regola));  // the box owns it
}

}  // namespace

void SelezionaTuttoAlFuoco(QLineEdit& campo) {
  new AlFuoco(campo);  // the box owns it
}

void SoloCifre(QLineEdit& campo, int massimo, const QString& altri) {
  const auto estraneo = [altri](QChar c) { return (c < u'0' || c > u'9') && !altri.contains(c); };
  Filtra(campo, massimo, [estraneo](QString entrato) { return entrato.removeIf(estraneo); });
}

void UnaRiga(QLineEdit& campo) {
  Filtra(campo, SenzaLimite, InUnaRiga);
}

void TestoDiCodice(QLineEdit& campo, int massimo) {
  Filtra(campo, massimo, [](const QString& entrato) {
    return SoloAnsi(InUnaRiga(entrato)).removeIf([](QChar c) { return c == u'\u00AB' || c == u'\u00BB'; });
  });
}

void SoloLettura(QLineEdit& campo) {
  Filtra(campo, 0, [](const QString&) { return QString(); });
}

void RendiLeggibile(QLineEdit& campo) {
  new Leggibile(campo);  // the box owns it
}

void ConPassoFisso(QLineEdit& campo) {
  campo.setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
}

void MostraCodici(QLineEdit& campo) {
  SoloLettura(campo);
  ConPassoFisso(campo);
  RendiLeggibile(campo);
}

void ImpostaComeSta(QLineEdit& campo, const QString& testo) {
  auto* validatore = const_cast<QValidator*>(campo.validator());
  if (auto* filtro = dynamic_cast<qtFiltro*>(validatore)) filtro->AmmettiComeSta(testo);
  campo.setText(testo);
}

}  // namespace parvik

#include "common/qtDialoghi.h"

#include <QApplication>
#include <QFileDialog>
#include <QHeaderView>
#include <QIcon>
#include <QMessageBox>
#include <QRegularExpression>
#include <QSettings>
#include <QTreeView>
#include <cstdio>
#include <cstdlib>

#include "common/qtSchermo.h"
#include "common/qtTesto.h"
#include "sistema/CartelleConfigurazione.h"

namespace parvik {
namespace {

const QSize DimensioneScelta(820, 520);

QMessageBox::Icon IconaDi(Icona icona) {
  switch (icona) {
    case Icona::Esclamazione:
      return QMessageBox::Warning;
    case Icona::Domanda:
      return QMessageBox::Question;
    default:
      return QMessageBox::Critical;
  }
}

QMessageBox::StandardButtons PulsantiDi(Pulsanti pulsanti) {
  switch (pulsanti) {
    case Pulsanti::SiNo:
      return QMessageBox::Yes | QMessageBox::No;
    case Pulsanti::SiNoAnnulla:
      return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    default:
      return QMessageBox::Ok;
  }
}

Risposta RispostaDi(int pulsante) {
  switch (pulsante) {
    case QMessageBox::Yes:
      return Risposta::Si;
    case QMessageBox::No:
      return Risposta::No;
    case QMessageBox::Ok:
      return Risposta::Ok;
    default:
      return Risposta::Annulla;
  }
}

}  // namespace

/// A box may be wanted while a dialog is open: by that dialog, or because the program is asked to end.
QWidget* qtDialoghi::Davanti() const {
  QWidget* aperto = QApplication::activeModalWidget();
  return aperto != nullptr ? aperto : padre_.data();
}

Risposta qtDialoghi::Chiedi(const Messaggio& messaggio) {
  QMessageBox scatola(IconaDi(messaggio.Simbolo), DaUtf8(messaggio.Titolo), DaUtf8(messaggio.Testo),
                      PulsantiDi(messaggio.Tasti), Davanti());
  scatola.setTextFormat(Qt::PlainText);
  // The program gets its icon after its window; a message may come before.
  if (scatola.windowIcon().isNull()) scatola.setWindowIcon(QIcon(":/ordavia.png"));
  scatola.setDefaultButton(messaggio.Tasti == Pulsanti::Ok ? QMessageBox::Ok : QMessageBox::Yes);
  return RispostaDi(scatola.exec());
}

QString VoceFiltro(const QString& etichetta, const QString& modello) {
  // In the toolkit's syntax a blank separates patterns, and only some characters may stand in one: "?"
  // matches those that may not.
  static const QRegularExpression estranei(QStringLiteral(R"([^a-zA-Z0-9_.*?+\-\[\]@{}/!<>$%&=^~:|#])"));
  QString ammesso = modello;
  return etichetta + " (" + ammesso.replace(estranei, "?") + ")";
}

std::filesystem::path qtDialoghi::ScegliFile(const RichiestaFile& richiesta) {
  // The toolkit's dialog reads what it wrote when it was last closed, and writes it when it closes, wherever
  // its settings are. This program keeps nothing of its own.
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope,
                     QString::fromStdString(NessunaCartella().string()));
  // The toolkit's own dialog: Italian and driven by the keyboard in the same way on every desktop.
  QFileDialog dialogo(Davanti(), DaUtf8(richiesta.Titolo),
                      QString::fromStdString(richiesta.Cartella.string()));
  dialogo.setOptions(QFileDialog::DontUseNativeDialog | QFileDialog::DontConfirmOverwrite |
                     QFileDialog::HideNameFilterDetails);
  dialogo.setFileMode(QFileDialog::AnyFile);
  dialogo.setAcceptMode(richiesta.Uso == RichiestaFile::Scopo::Apri ? QFileDialog::AcceptOpen
                                                                    : QFileDialog::AcceptSave);
  dialogo.setNameFilter(VoceFiltro(DaUtf8(richiesta.EtichettaFiltro), DaUtf8(richiesta.Modello)));
  dialogo.resize(EntroLoSchermo(dialogo, DimensioneScelta));
  if (auto* elenco = dialogo.findChild<QTreeView*>()) {
    elenco->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
  }
  if (!richiesta.NomeProposto.empty()) dialogo.selectFile(DaUtf8(richiesta.NomeProposto));
  if (dialogo.exec() != QDialog::Accepted || dialogo.selectedFiles().isEmpty()) return {};
  return dialogo.selectedFiles().constFirst().toStdString();
}

void qtDialoghi::Termina(int stato) {
  static_cast<void>(std::fflush(nullptr));
  std::_Exit(stato);  // no clean-up, no question: the catalogue is not this program's
}

}  // namespace parvik

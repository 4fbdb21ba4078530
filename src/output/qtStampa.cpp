#include "output/qtStampa.h"

#include <QJsonObject>
#include <QPluginLoader>
#include <QProgressDialog>

#include "common/TestoMostrabile.h"
#include "sistema/LetturaFile.h"

namespace parvik {
namespace {

constexpr int Millesimi = 1000;
constexpr const char* NomeModulo = "parvik32-stampa.so";

/// Of a file that could not be loaded: it cannot be read, or it is not what it should be.
NumeroErrore Motivo(const std::filesystem::path& file) {
  const Esito<void> leggibile = ProvaLettura(file);
  return leggibile ? NumeroErrore::AccessoPercorsoFile : leggibile.Errore();
}

}  // namespace

Esito<ModuloStampa*, std::string> CaricaModuloStampa(const std::filesystem::path& cartella) {
  const std::filesystem::path file = cartella / NomeModulo;
  QPluginLoader libreria(QString::fromStdString(file.string()));
  ModuloStampa* modulo = nullptr;
  // The name of the contract can be read without running what lies there.
  if (libreria.metaData().value("IID").toString() == qobject_interface_iid<ModuloStampa*>())
    modulo = qobject_cast<ModuloStampa*>(libreria.instance());
  if (modulo == nullptr) return TestoErrore(Motivo(file)) + "\r\n" + Mostrabile(file.string());
  return modulo;
}

bool StampaConAttesa(Stampante& stampante, const LavoroCarta& lavoro, const AttesaCarta& attesa) {
  QProgressDialog scatola(attesa.Testo, "Annulla", 0, Millesimi, attesa.Padre);
  scatola.setObjectName(attesa.Nome);
  scatola.setWindowTitle("Ordavia");
  scatola.setWindowModality(Qt::ApplicationModal);
  scatola.setMinimumDuration(500);
  QObject::connect(&scatola, &QDialog::rejected, &scatola, &QProgressDialog::cancel);
  const double tutto = static_cast<double>(lavoro.Parte.Lunghezza) + 1;
  return StampaSuCarta(stampante, lavoro, [&](std::size_t fino) {
    const auto fatto = static_cast<double>(fino - lavoro.Parte.Inizio);
    scatola.setValue(static_cast<int>(Millesimi * (fatto / tutto)));
    return !scatola.wasCanceled() && attesa.Serve();
  });
}

}  // namespace parvik

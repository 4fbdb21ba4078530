// The print module, loaded as the editor loads it: from the folder of the program, when printing is used.
#include <gtest/gtest.h>

#include <QLibraryInfo>
#include <QProcess>
#include <QTest>
#include <filesystem>

#include "Finestra.h"
#include "output/qtStampa.h"
#include "supporto/ConNome.h"

namespace parvik {
namespace {

namespace fs = std::filesystem;
using prova::CartellaTemporanea;
using prova::Finestra;
using prova::NelProssimoDialogo;

fs::path NelModulo(const CartellaTemporanea& cartella) {
  return cartella / "parvik32-stampa.so";
}

/// What the system's loader loads before main.
QString LibrerieDi(const fs::path& programma) {
  QProcess processo;
  QProcessEnvironment ambiente = QProcessEnvironment::systemEnvironment();
  ambiente.insert("LD_TRACE_LOADED_OBJECTS", "1");
  processo.setProcessEnvironment(ambiente);
  processo.start(QString::fromStdString(programma.string()), QStringList());
  EXPECT_TRUE(processo.waitForFinished());
  return QString::fromUtf8(processo.readAllStandardOutput());
}

TEST(ModuloStampa, TheEditorStartsWithoutTheToolkitsPrinting) {
  const QString librerie = LibrerieDi(prova::ModuloStampa().parent_path() / "parvik32");
  EXPECT_TRUE(librerie.contains("libQt6Widgets.so")) << librerie.toStdString();
  EXPECT_FALSE(librerie.contains("libQt6PrintSupport.so")) << librerie.toStdString();
}

TEST(ModuloStampa, IsLoadedFromTheFolderThatIsNamedAndOnlyOnce) {
  const auto primo = CaricaModuloStampa(prova::ModuloStampa().parent_path());
  ASSERT_TRUE(primo) << primo.Errore();
  const auto secondo = CaricaModuloStampa(prova::ModuloStampa().parent_path());
  ASSERT_TRUE(secondo) << secondo.Errore();
  ASSERT_NE(*primo, nullptr);
  EXPECT_EQ(*primo, *secondo);
}

struct Guasto {
  const char* Nome;
  void (*Fai)(const fs::path& modulo);
  NumeroErrore Errore;
};
using prova::PrintTo;

/// The first bytes of the built module.
void Mozza(const fs::path& modulo, std::uintmax_t byte) {
  fs::copy_file(prova::ModuloStampa(), modulo);
  ASSERT_LT(byte, fs::file_size(modulo));
  fs::resize_file(modulo, byte);
}

/// The built module, asking for a library that there is not.
void SenzaLibreria(const fs::path& modulo) {
  std::string byte = prova::Contenuto(prova::ModuloStampa());
  const std::size_t nome = byte.find("libQt6PrintSupport.so");
  ASSERT_NE(nome, std::string::npos);
  prova::Crea(modulo, byte.replace(nome, 3, "ZZZ"));
}

class ModuloGuasto : public testing::TestWithParam<Guasto> {};

TEST_P(ModuloGuasto, IsToldWithItsPath) {
  const CartellaTemporanea cartella;
  GetParam().Fai(NelModulo(cartella));
  const auto modulo = CaricaModuloStampa(cartella.Percorso());
  ASSERT_FALSE(modulo);
  EXPECT_EQ(modulo.Errore(), TestoErrore(GetParam().Errore) + "\r\n" + NelModulo(cartella).string());
}

INSTANTIATE_TEST_SUITE_P(
    Guasti, ModuloGuasto,
    testing::Values(
        Guasto{"missing", [](const fs::path&) {}, NumeroErrore::FileNonTrovato},
        Guasto{"a_link_to_nothing", [](const fs::path& modulo) { fs::create_symlink("manca", modulo); },
               NumeroErrore::FileNonTrovato},
        Guasto{"empty", [](const fs::path& modulo) { prova::Crea(modulo, ""); },
               NumeroErrore::AccessoPercorsoFile},
        Guasto{"a_text", [](const fs::path& modulo) { prova::Crea(modulo, "non è una libreria\n"); },
               NumeroErrore::AccessoPercorsoFile},
        Guasto{"a_folder", [](const fs::path& modulo) { fs::create_directory(modulo); },
               NumeroErrore::AccessoPercorsoFile},
        Guasto{"cut_before_the_contracts_name", [](const fs::path& modulo) { Mozza(modulo, 512); },
               NumeroErrore::AccessoPercorsoFile},
        Guasto{"cut_behind_the_contracts_name", [](const fs::path& modulo) { Mozza(modulo, 4'096); },
               NumeroErrore::AccessoPercorsoFile},
        Guasto{"without_the_toolkits_library", SenzaLibreria, NumeroErrore::AccessoPercorsoFile},
        Guasto{"a_plugin_of_another_kind",
               [](const fs::path& modulo) {
                 const QString plugin = QLibraryInfo::path(QLibraryInfo::PluginsPath);
                 fs::copy_file(plugin.toStdString() + "/platforms/libqminimal.so", modulo);
               },
               NumeroErrore::AccessoPercorsoFile}),
    [](const auto& caso) { return std::string(caso.param.Nome); });

void StampaSuStampante(Finestra& finestra) {
  NelProssimoDialogo([](QDialog& destinazione) { QTest::keyClick(&destinazione, Qt::Key_Return); });
  finestra.Azione("mnuStampa").trigger();
}

TEST(ModuloStampa, PrintingWithoutItTellsSoAndLosesNothingAndWorksAsSoonAsItIsThere) {
  qputenv("CUPS_SERVER", "/nonexistent/cups.sock");  // no printer: the command ends without a word
  Finestra finestra;
  finestra.Scegli(12);
  finestra.Azione("mnuAnte").trigger();
  finestra.Sezione(0).setPlainText("testo\n");
  fs::remove(finestra.ModuloStampa());
  finestra.Persona().Rispondera(Risposta::Ok);
  StampaSuStampante(finestra);
  ASSERT_EQ(finestra.Persona().Messaggi.size(), 1U);
  EXPECT_EQ(
      finestra.Persona().Messaggi[0].Testo,
      "Si è verificato l'errore: 53 Impossibile trovare il file\r\n" + finestra.ModuloStampa().string());
  EXPECT_EQ(finestra.Sezione(0).toPlainText(), "testo\n");
  EXPECT_FALSE(finestra.Anteprima().isVisible());

  fs::create_symlink(prova::ModuloStampa(), finestra.ModuloStampa());
  StampaSuStampante(finestra);
  EXPECT_EQ(finestra.Persona().Messaggi.size(), 1U);
  EXPECT_FALSE(finestra.Anteprima().isVisible());
}

}  // namespace
}  // namespace parvik

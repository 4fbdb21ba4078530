// An installation with the program, a home folder, and the program at work between the two, on a display of
// its own.
#pragma once

#include <gtest/gtest.h>

#include <QProcess>
#include <QTest>
#include <csignal>
#include <filesystem>
#include <memory>
#include <set>
#include <string>

#include "SchermoX.h"
#include "supporto/Cartelle.h"

namespace parvik::prova {

inline constexpr const char* Finestra = "Ordavia";  // the window without a type, and messages
inline constexpr const char* ConTipo = "Ordavia - FATT*.IMG";
inline constexpr const char* Domanda = "File immagine";
inline constexpr int TempoMassimo = 20'000;  // milliseconds

/// A display of a given size.
class Xvfb {
 public:
  Xvfb(int larghezza, int altezza) {
    const QString misura = QStringLiteral("%1x%2x24").arg(larghezza).arg(altezza);
    processo_.start("Xvfb", {"-displayfd", "1", "-screen", "0", misura, "-nolisten", "tcp"});
    EXPECT_TRUE(QTest::qWaitFor([this] { return processo_.canReadLine(); }, TempoMassimo));
    nome_ = ":" + processo_.readLine().trimmed().toStdString();
  }
  Xvfb(const Xvfb&) = delete;
  Xvfb& operator=(const Xvfb&) = delete;
  ~Xvfb() {
    processo_.terminate();
    processo_.waitForFinished();
  }

  const std::string& Nome() const { return nome_; }

 private:
  QProcess processo_;
  std::string nome_;
};

/// An installation with the program, a home folder, and the program at work between the two.
class Programma : public testing::Test {
 protected:
  Programma() {
    std::filesystem::create_directory(casa_);
    std::filesystem::copy(Esempio(), velkor_, std::filesystem::copy_options::recursive);
    std::filesystem::create_directories(velkor_ / "PARVIK");
    for (const char* nome : {"parvik32", "parvik32-stampa.so"})
      std::filesystem::copy_file(ModuloStampa().parent_path() / nome, velkor_ / "PARVIK" / nome);
  }
  ~Programma() override {
    processo_.kill();
    processo_.waitForFinished();
  }

  void Avvia(int larghezza = 1280, int altezza = 1024, const char* scala = "1") {
    xvfb_ = std::make_unique<Xvfb>(larghezza, altezza);
    schermo_ = std::make_unique<SchermoX>(xvfb_->Nome());
    QProcessEnvironment ambiente = QProcessEnvironment::systemEnvironment();
    for (const QString& nome : ambiente.keys())
      if (nome.startsWith("XDG_")) ambiente.remove(nome);
    for (const char* nome : {"WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "SESSION_MANAGER"}) ambiente.remove(nome);
    ambiente.insert("HOME", QString::fromStdString(casa_.string()));
    ambiente.insert("DISPLAY", QString::fromStdString(xvfb_->Nome()));
    ambiente.insert("QT_SCALE_FACTOR", scala);
    for (auto i = altre_.cbegin(); i != altre_.cend(); ++i) ambiente.insert(i.key(), i.value());
    processo_.setProcessChannelMode(QProcess::ForwardedChannels);
    processo_.setProcessEnvironment(ambiente);
    Riavvia();
  }
  /// Once more on the same display.
  void Riavvia(const QStringList& argomenti = {}) {
    processo_.start(QString::fromStdString((velkor_ / "PARVIK" / "parvik32").string()), argomenti);
    ASSERT_TRUE(processo_.waitForStarted());
  }

  SchermoX::Misura Attendi(const char* titolo) {
    EXPECT_TRUE(QTest::qWaitFor([&] { return schermo_->Finestra(titolo).has_value(); }, TempoMassimo))
        << titolo;
    return schermo_->Finestra(titolo).value_or(SchermoX::Misura());
  }
  void AttendiSenza(const char* titolo) {
    EXPECT_TRUE(QTest::qWaitFor([&] { return !schermo_->Finestra(titolo); }, TempoMassimo)) << titolo;
  }
  /// Keys to a window once it is there.
  void Premi(const char* titolo, const char* tasto, unsigned modificatori = SchermoX::Nessuno) {
    Attendi(titolo);
    schermo_->Premi(titolo, tasto, modificatori);
  }

  void ScegliIlPrimoTipo() {
    Premi(Finestra, "f", SchermoX::Alt);
    schermo_->Premi("t");
    Premi("Tipo Stampa", "Return");
    AttendiSenza("Tipo Stampa");
  }

  void Manda(int segnale) { EXPECT_EQ(::kill(static_cast<pid_t>(processo_.processId()), segnale), 0); }
  /// The status; -1 for a program that did not end by itself.
  int Fine() {
    if (!QTest::qWaitFor([this] { return processo_.state() == QProcess::NotRunning; }, TempoMassimo))
      return -1;
    return processo_.exitStatus() == QProcess::NormalExit ? processo_.exitCode() : -1;
  }

  /// The files in the home folder, but for those of the fonts' library.
  std::set<std::string> InCasa() const {
    std::set<std::string> file;
    for (const std::filesystem::directory_entry& voce :
         std::filesystem::recursive_directory_iterator(casa_)) {
      const std::string nome = voce.path().lexically_relative(casa_).string();
      if (nome != ".cache" && !nome.starts_with(".cache/fontconfig")) file.insert(nome);
    }
    return file;
  }

  CartellaTemporanea cartella_;
  std::filesystem::path casa_ = cartella_ / "casa";
  std::filesystem::path velkor_ = cartella_ / "VELKOR";
  QMap<QString, QString> altre_;  // variables of the environment
  QProcess processo_;
  std::unique_ptr<Xvfb> xvfb_;
  std::unique_ptr<SchermoX> schermo_;
};

}  // namespace parvik::prova

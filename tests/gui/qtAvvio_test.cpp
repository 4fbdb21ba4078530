// The program where there is no display.
#include "app/qtAvvio.h"

#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>

#include <QProcess>
#include <csignal>

#include "sistema/posix/Descrittore.h"
#include "supporto/Cartelle.h"

namespace parvik {
namespace {

constexpr const char* UnaRiga = "parvik32: nessuno schermo su cui aprire la finestra\n";

/// The program in an environment that names no display but those given.
class SenzaSchermo {
 public:
  explicit SenzaSchermo(const QStringList& variabili) {
    QProcessEnvironment ambiente = QProcessEnvironment::systemEnvironment();
    for (const char* nome : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "XDG_RUNTIME_DIR"})
      ambiente.remove(nome);
    for (const QString& variabile : variabili)
      ambiente.insert(variabile.section('=', 0, 0), variabile.section('=', 1));
    processo_.setProcessEnvironment(ambiente);
    processo_.start(QString::fromStdString((prova::ModuloStampa().parent_path() / "parvik32").string()),
                    QStringList());
  }

  QProcess& Processo() { return processo_; }
  /// Its status; -1 when a signal ended it, or nothing did.
  int Fine() {
    if (!processo_.waitForFinished() || processo_.exitStatus() != QProcess::NormalExit) return -1;
    return processo_.exitCode();
  }
  std::string Errori() { return processo_.readAllStandardError().toStdString(); }
  std::string Uscita() { return processo_.readAllStandardOutput().toStdString(); }

 private:
  QProcess processo_;
};

struct Mancanza {
  const char* Nome;
  QStringList Variabili;
};

void PrintTo(const Mancanza& mancanza, std::ostream* uscita) {
  *uscita << mancanza.Nome;
}

class QtAvvio : public testing::TestWithParam<Mancanza> {};

TEST_P(QtAvvio, WithoutADisplayTellsSoInOneItalianLineAndEndsWithStatusOne) {
  SenzaSchermo programma(GetParam().Variabili);
  EXPECT_EQ(programma.Fine(), EXIT_FAILURE);
  EXPECT_EQ(programma.Errori(), UnaRiga);
  EXPECT_EQ(programma.Uscita(), "");
}

INSTANTIATE_TEST_SUITE_P(
    Mancanze, QtAvvio,
    testing::Values(Mancanza{"none_named", {}}, Mancanza{"x11_that_nobody_serves", {"DISPLAY=:4321"}},
                    Mancanza{"no_name_of_a_display", {"DISPLAY=niente"}},
                    Mancanza{"wayland_that_nobody_serves", {"WAYLAND_DISPLAY=wayland-4321"}},
                    Mancanza{"wayland_chosen_without_its_display", {"QT_QPA_PLATFORM=wayland"}},
                    Mancanza{"a_session_of_wayland_without_its_display", {"XDG_SESSION_TYPE=wayland"}},
                    Mancanza{"wayland_that_nobody_serves_in_its_folder",
                             {"WAYLAND_DISPLAY=wayland-4321", "XDG_RUNTIME_DIR=/tmp"}},
                    Mancanza{"a_platform_that_there_is_not", {"QT_QPA_PLATFORM=niente"}},
                    Mancanza{"a_chosen_platform_without_its_display", {"QT_QPA_PLATFORM=xcb"}},
                    Mancanza{"no_platforms_at_all",
                             {"DISPLAY=:4321", "QT_PLUGIN_PATH=/nonexistent",
                              "QT_QPA_PLATFORM_PLUGIN_PATH=/nonexistent"}},
                    Mancanza{"a_platform_that_starts_without_a_screen",
                             {"QT_QPA_PLATFORM=linuxfb:fb=/nonexistent"}},
                    Mancanza{"a_platform_that_aborts_by_itself",
                             {"QT_QPA_PLATFORM=eglfs", "QT_QPA_EGLFS_INTEGRATION=niente"}}),
    [](const auto& mancanza) { return std::string(mancanza.param.Nome); });

/// A display of which nothing is heard: whoever connects waits.
class SchermoMuto {
 public:
  static constexpr int PrimaPorta = 6000;  // of display 0

  SchermoMuto() : ascolto_(::socket(AF_INET, SOCK_STREAM, 0)) {
    sockaddr_in dove = {};
    dove.sin_family = AF_INET;
    dove.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    for (numero_ = 100; numero_ < 1000; ++numero_) {
      dove.sin_port = htons(static_cast<std::uint16_t>(PrimaPorta + numero_));
      if (::bind(ascolto_.Numero(), reinterpret_cast<const sockaddr*>(&dove), sizeof dove) == 0) break;
    }
    EXPECT_EQ(::listen(ascolto_.Numero(), 1), 0);
  }

  QString Variabile() const { return QStringLiteral("DISPLAY=127.0.0.1:%1").arg(numero_); }
  bool QualcunoAspetta() const {
    constexpr int TempoMassimo = 20'000;  // milliseconds
    pollfd arrivi = {.fd = ascolto_.Numero(), .events = POLLIN, .revents = 0};
    return ::poll(&arrivi, 1, TempoMassimo) == 1;
  }

 private:
  Descrittore ascolto_;
  int numero_ = 0;
};

class QtAvvioSegnale : public testing::TestWithParam<int> {};

TEST_P(QtAvvioSegnale, EndsAProgramThatWaitsForADisplayThatDoesNotAnswer) {
  const SchermoMuto schermo;
  SenzaSchermo programma({schermo.Variabile()});
  ASSERT_TRUE(schermo.QualcunoAspetta());
  ASSERT_EQ(::kill(static_cast<pid_t>(programma.Processo().processId()), GetParam()), 0);
  EXPECT_EQ(programma.Fine(), EXIT_FAILURE);
  EXPECT_EQ(programma.Errori(), "");
}

INSTANTIATE_TEST_SUITE_P(Segnali, QtAvvioSegnale, testing::Values(SIGTERM, SIGHUP, SIGINT),
                         [](const auto& segnale) {
                           return std::string("signal_") + std::to_string(segnale.param);
                         });

}  // namespace
}  // namespace parvik

// The application, which outlives an event for which there is too little memory.
#pragma once

#include <QApplication>

namespace parvik {

/// What an event was about is given up then, and left as it was at that moment.
class qtProgramma final : public QApplication {
  Q_OBJECT

 public:
  /// Both must outlive the application.
  qtProgramma(int& argc, char** argv) : QApplication(argc, argv) {}

  bool notify(QObject* chi, QEvent* evento) override;

 signals:
  /// Of one or several events that there was too little memory for; comes when they are over.
  void MemoriaEsaurita();

 private:
  void Segnala();

  bool segnalata_ = false;
};

}  // namespace parvik

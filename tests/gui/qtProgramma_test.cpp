// An event for which there is too little memory.
#include "app/qtProgramma.h"

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QTest>
#include <new>
#include <stdexcept>

namespace parvik {
namespace {

/// Takes up more than there is, again and again.
class Ingordo : public QObject {
 public:
  int Presi = 0;

 protected:
  bool event(QEvent* evento) override {
    if (evento->type() != QEvent::User) return QObject::event(evento);
    if (++Presi % 2 == 0) throw std::length_error("longer than any memory is");
    throw std::bad_alloc();
  }
};

TEST(QtProgramma, OutlivesEventsWithoutMemoryAndSaysItOnce) {
  QSignalSpy dette(qApp, SIGNAL(MemoriaEsaurita()));
  Ingordo ingordo;
  for (int i = 0; i < 3; ++i) QApplication::postEvent(&ingordo, new QEvent(QEvent::User));
  QEvent evento(QEvent::User);
  EXPECT_FALSE(QApplication::sendEvent(&ingordo, &evento));
  EXPECT_EQ(dette.size(), 0) << "not in the middle of it";
  EXPECT_TRUE(QTest::qWaitFor([&] { return ingordo.Presi == 4 && dette.size() == 1; }));
  QCoreApplication::processEvents();
  EXPECT_EQ(dette.size(), 1);
  QApplication::sendEvent(&ingordo, &evento);
  EXPECT_TRUE(QTest::qWaitFor([&] { return dette.size() == 2; })) << "once for those that come together";
}

}  // namespace
}  // namespace parvik

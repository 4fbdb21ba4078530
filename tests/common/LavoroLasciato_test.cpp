#include "common/LavoroLasciato.h"

#include <gtest/gtest.h>

#include <atomic>
#include <future>
#include <new>

namespace parvik {
namespace {

using namespace std::chrono_literals;

constexpr auto Abbastanza = 10s;

TEST(LavoroLasciato, HandsOverWhatHasBecomeOfItOnce) {
  std::promise<void> detto;
  LavoroLasciato<int> lavoro([&detto] { detto.set_value(); });
  EXPECT_FALSE(lavoro.AlLavoro());
  EXPECT_EQ(lavoro.Ritira(), std::nullopt);
  lavoro.Comincia([] { return 7; });
  EXPECT_EQ(detto.get_future().wait_for(Abbastanza), std::future_status::ready);
  EXPECT_TRUE(lavoro.Attendi(Abbastanza));
  EXPECT_FALSE(lavoro.AlLavoro());
  EXPECT_EQ(lavoro.Ritira(), 7);
  EXPECT_EQ(lavoro.Ritira(), std::nullopt);
}

/// Work that hangs until the test lets it go.
class LavoroCheNonTorna : public testing::Test {
 protected:
  LavoroCheNonTorna() : fine_(lascia_.get_future().share()) {}
  ~LavoroCheNonTorna() override {
    lascia_.set_value();
    while (inCorso_->load() > 0) std::this_thread::yield();
  }
  std::function<int()> Appeso() {
    ++*inCorso_;
    return [fine = fine_, inCorso = inCorso_] {
      fine.wait();
      --*inCorso;
      return 1;
    };
  }

  std::promise<void> lascia_;
  std::shared_future<void> fine_;
  std::shared_ptr<std::atomic<int>> inCorso_ = std::make_shared<std::atomic<int>>(0);
};

TEST_F(LavoroCheNonTorna, IsNotWaitedForWhenItsOwnerGoes) {
  {
    LavoroLasciato<int> lavoro([] { ADD_FAILURE() << "told, although its owner has gone"; });
    lavoro.Comincia(Appeso());
    EXPECT_TRUE(lavoro.AlLavoro());
    EXPECT_FALSE(lavoro.Attendi(1ms));
    EXPECT_EQ(lavoro.Ritira(), std::nullopt);
  }
  EXPECT_EQ(inCorso_->load(), 1) << "it still hangs";
}

TEST_F(LavoroCheNonTorna, IsLeftToItselfWhenAnotherBegins) {
  LavoroLasciato<int> lavoro;
  lavoro.Comincia(Appeso());
  lavoro.Comincia([] { return 2; });
  EXPECT_TRUE(lavoro.Attendi(Abbastanza));
  EXPECT_EQ(lavoro.Ritira(), 2);
  lavoro.Comincia(Appeso());
  lavoro.Lascia();
  EXPECT_FALSE(lavoro.AlLavoro());
}

TEST(LavoroLasciato, WithoutMemoryEndsWithNothing) {
  LavoroLasciato<int> lavoro;
  lavoro.Comincia([]() -> int { throw std::bad_alloc(); });
  EXPECT_TRUE(lavoro.Attendi(Abbastanza));
  EXPECT_FALSE(lavoro.AlLavoro());
  EXPECT_EQ(lavoro.Ritira(), std::nullopt);
}

}  // namespace
}  // namespace parvik

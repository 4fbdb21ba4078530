// One piece of work at a time on a thread of its own, for a window that goes on meanwhile.
#pragma once

#include <QMetaObject>
#include <QObject>
#include <atomic>
#include <functional>
#include <stop_token>
#include <system_error>
#include <thread>
#include <utility>

namespace parvik {

/// `Fatto`, a value, is what becomes of the work. Used on one thread, that of the windows.
template <class Fatto>
class qtFilo final : public QObject {
 public:
  using Lavoro = std::function<Fatto(const std::stop_token& smetti)>;

  /// Each result is handed to `consegna`, when the thread of the windows has nothing else to do. Work that is
  /// under way when this goes is asked to stop and waited for, and handed to nobody.
  explicit qtFilo(std::function<void(Fatto)> consegna) : consegna_(std::move(consegna)) {}

  bool AlLavoro() const { return filo_.joinable(); }

  /// Nothing must be under way. Where the system has no thread to give, the work is done before this returns.
  void Comincia(Lavoro lavoro) {
    finito_ = false;
    const auto lavora = [this, lavoro](const std::stop_token& smetti) {
      fatto_ = lavoro(smetti);
      finito_ = true;
      QMetaObject::invokeMethod(
          this, [this] { Finisci(); }, Qt::QueuedConnection);
    };
    try {
      filo_ = std::jthread(lavora);
    } catch (const std::system_error&) {
      consegna_(lavoro(std::stop_token()));
    }
  }

  /// Its result is no longer of use.
  void Ferma() { filo_.request_stop(); }

  /// Asks it to stop, waits, and hands in what has become of it.
  void Aspetta() {
    if (!AlLavoro()) return;
    Ferma();
    Ritira();
  }

 private:
  /// Also called once more for one that was waited for already.
  void Finisci() {
    if (AlLavoro() && finito_) Ritira();
  }

  void Ritira() {
    filo_.join();
    consegna_(std::exchange(fatto_, {}));
  }

  std::function<void(Fatto)> consegna_;
  Fatto fatto_ = {};
  std::atomic<bool> finito_ = false;
  std::jthread filo_;  // last: it uses the others
};

}  // namespace parvik

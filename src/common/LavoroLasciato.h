// Work on a thread that nobody has to wait for: whoever asked for it may go while it hangs.
#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <system_error>
#include <thread>
#include <utility>

#include "common/SeBastaMemoria.h"

namespace parvik {

/// One piece of work at a time, for what may wait on a share that does not answer. The work may use nothing
/// but what it was given: it may outlive all else. `Fatto`, a value, is what becomes of it.
template <class Fatto>
class LavoroLasciato {
 public:
  using Lavoro = std::function<Fatto()>;

  /// `pronto` is told, on the thread of the work, that it has ended; may be empty.
  explicit LavoroLasciato(std::function<void()> pronto = {}) : pronto_(std::move(pronto)) {}
  LavoroLasciato(const LavoroLasciato&) = delete;
  LavoroLasciato& operator=(const LavoroLasciato&) = delete;
  ~LavoroLasciato() { Lascia(); }

  bool AlLavoro() const {
    if (!corso_) return false;
    const std::lock_guard chiuso(corso_->Porta);
    return !corso_->Finito;
  }

  /// What was under way is left to itself. Where the system has no thread to give nothing is done.
  void Comincia(Lavoro lavoro) {
    Lascia();
    auto corso = std::make_shared<Corso>();
    corso->Pronto = pronto_;
    try {
      std::thread([corso, lavoro = std::move(lavoro)] { Esegui(*corso, lavoro); }).detach();
    } catch (const std::system_error&) {
      return;
    }
    corso_ = std::move(corso);
  }

  /// Waits until it has ended, for so long at most. Whether it has.
  bool Attendi(std::chrono::milliseconds quanto) {
    if (!corso_) return true;
    std::unique_lock chiuso(corso_->Porta);
    return corso_->AllaFine.wait_for(chiuso, quanto, [this] { return corso_->Finito; });
  }

  /// What has become of it, once; nullopt before its end, and where memory did not suffice.
  std::optional<Fatto> Ritira() {
    if (!corso_) return std::nullopt;
    const std::lock_guard chiuso(corso_->Porta);
    return std::exchange(corso_->Esito, std::nullopt);
  }

  /// Nobody is told of it any more.
  void Lascia() {
    if (!corso_) return;
    {
      const std::lock_guard chiuso(corso_->Porta);
      corso_->Pronto = nullptr;
    }
    corso_.reset();
  }

 private:
  struct Corso {
    std::mutex Porta;
    std::condition_variable AllaFine;
    std::function<void()> Pronto;
    std::optional<Fatto> Esito;
    bool Finito = false;
  };

  static void Esegui(Corso& corso, const Lavoro& lavoro) {
    std::optional<Fatto> fatto = SeBastaMemoria([&] { return std::optional<Fatto>(lavoro()); }, std::nullopt);
    const std::lock_guard chiuso(corso.Porta);
    corso.Esito = std::move(fatto);
    corso.Finito = true;
    corso.AllaFine.notify_all();
    const auto avvisa = [&corso] {
      if (corso.Pronto) corso.Pronto();
      return true;
    };
    static_cast<void>(SeBastaMemoria(avvisa, false));
  }

  std::function<void()> pronto_;
  std::shared_ptr<Corso> corso_;
};

}  // namespace parvik

// A sign that somebody is at work, which all programs find that know its name, and which ends with whoever
// set it, however that comes about.
#pragma once

#include <filesystem>
#include <memory>

namespace parvik {

class Presenza {
 public:
  enum class Altri {
    Nessuno,   // nobody else is there
    Presenti,  // others were there before
    Ignoti,    // there is no sign: no folder for it, or no locks
  };

  /// None.
  Presenza();
  /// A file that is locked as long as this lives, and goes with the last one who is there; nothing is in it.
  /// Its folder must be the user's alone; it is made when it is missing, but not the one that it lies in.
  explicit Presenza(const std::filesystem::path& file);
  Presenza(Presenza&& altra) noexcept;
  Presenza& operator=(Presenza&& altra) noexcept;
  Presenza(const Presenza&) = delete;
  Presenza& operator=(const Presenza&) = delete;
  ~Presenza();

  /// As it was found when this was made.
  Altri Trovati() const { return trovati_; }

 private:
  struct Segno;
  std::unique_ptr<Segno> segno_;
  Altri trovati_ = Altri::Ignoti;
};

}  // namespace parvik

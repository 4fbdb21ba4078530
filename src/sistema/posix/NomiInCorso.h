// The provisional files that this process is writing: what must go when a signal ends it.
#pragma once

#include <filesystem>
#include <string_view>

namespace parvik {

/// While it lives, the file counts as one that this process is at work on.
class NomeInCorso {
 public:
  explicit NomeInCorso(const std::filesystem::path& file);
  NomeInCorso(const NomeInCorso&) = delete;
  NomeInCorso& operator=(const NomeInCorso&) = delete;
  ~NomeInCorso();

 private:
  static constexpr std::size_t Nessuno = static_cast<std::size_t>(-1);
  std::size_t casella_ = Nessuno;
};

/// Whether one of them has this in its name.
bool InCorso(std::string_view parte);

/// Takes them all from the disk. A signal handler may call it.
void TogliNomiInCorso();

}  // namespace parvik

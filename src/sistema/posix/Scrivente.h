// Who writes a file: what tells a provisional file at work from one that a killed program left behind, on
// systems that have no locks too.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace parvik {

/// A process, and the moment at which it began to write.
struct Scrivente {
  std::uint64_t Inizio = 0;    // nanoseconds since 1970: who has the smaller one came first
  std::uint32_t Sistema = 0;   // one run of one system: from its start until it is shut down
  std::uint32_t Processo = 0;  // the process number there
  std::uint64_t Nascita =
      0;  // when that process started, in the system's own count; 0 where it does not tell

  /// This process, now.
  static Scrivente Questo();
};

/// As a part of a file's name: always of this length, and in the order of Inizio.
inline constexpr std::size_t LunghezzaScrivente = 16 + 1 + 8 + 1 + 8 + 1 + 12;
std::string Testo(const Scrivente& chi);
/// nullopt when it is no such text.
std::optional<Scrivente> LeggiScrivente(std::string_view testo);

enum class Vita { Vivo, Morto, Ignota };
/// Whether the process still runs. Ignota: that of another system, or of this one before it was started anew.
Vita VitaDi(const Scrivente& chi);

}  // namespace parvik

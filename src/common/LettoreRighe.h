// Lines of a text file of the host.
#pragma once

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string_view>

namespace parvik {

/// Walks the lines of a text: CR LF ends a line, and so does a lone CR. A lone LF, a NUL and byte 0x1A are
/// data. The last line needs no end; a text that ends with a line end has no further, empty line after it.
/// The text must outlive the lines that are handed out.
class LettoreRighe {
 public:
  explicit LettoreRighe(std::string_view testo) : resto_(testo) {}

  bool Fine() const { return resto_.empty(); }

  /// The next line without its line end; nullopt at the end of the text.
  std::optional<std::string_view> Prossima() {
    if (Fine()) return std::nullopt;
    ++numero_;
    const std::size_t fine = std::min(resto_.find('\r'), resto_.size());
    const std::string_view riga = resto_.substr(0, fine);
    resto_.remove_prefix(fine);
    if (resto_.starts_with("\r\n")) {
      resto_.remove_prefix(2);
    } else if (!resto_.empty()) {
      resto_.remove_prefix(1);
    }
    return riga;
  }

  /// How many lines were handed out: the 1-based number of the last one.
  std::size_t Numero() const { return numero_; }

  /// What was not handed out yet.
  std::string_view Resto() const { return resto_; }

 private:
  std::string_view resto_;
  std::size_t numero_ = 0;
};

}  // namespace parvik

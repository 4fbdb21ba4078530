// Standard error, while libraries write to it that nobody asked.
#pragma once

#include <memory>
#include <string_view>

namespace parvik {

/// While it lives, what is written to standard error goes nowhere, but what Scrivi writes. At most one at a
/// time.
class ErroriDeviati {
 public:
  ErroriDeviati();
  ErroriDeviati(const ErroriDeviati&) = delete;
  ErroriDeviati& operator=(const ErroriDeviati&) = delete;
  ~ErroriDeviati();

  /// To where standard error leads in truth, whether or not it is led astray. No object is needed: message
  /// handlers are given none.
  static void Scrivi(std::string_view testo);

 private:
  struct Veri;
  std::unique_ptr<Veri> veri_;
};

}  // namespace parvik

// The copies of templates that were not saved, on the disk: one's own, and those that nobody is left to own
// (docs/recupero.md).
#pragma once

#include <filesystem>
#include <vector>

#include "editor/CopiaRecupero.h"
#include "sistema/Presenza.h"

namespace parvik {

/// The copy that this window keeps. Used by one thread at a time.
class CopiaPropria {
 public:
  /// The user's folder for what programs keep; "" for none: nothing is ever written.
  explicit CopiaPropria(const std::filesystem::path& stato);
  CopiaPropria(const CopiaPropria&) = delete;
  CopiaPropria& operator=(const CopiaPropria&) = delete;
  ~CopiaPropria() { Togli(); }

  /// Whether it is on the disk now, whole. On failure an older one stays.
  bool Scrivi(const CopiaRecupero& copia);
  bool Scritta() const { return scritta_; }
  /// The folder goes too when nothing else is in it.
  void Togli();

 private:
  std::filesystem::path cartella_;  // "" for none
  std::filesystem::path file_;
  Presenza presenza_;
  bool scritta_ = false;
};

/// A copy whose owner has ended. While it lives, nobody else finds it.
struct CopiaTrovata {
  std::filesystem::path File;
  Presenza Custodia;
  CopiaRecupero Copia;

  /// It is not needed any more.
  void Togli();
};

/// All that there are, the newest first. What an owner that has ended left half done is cleared away; what
/// is no copy is left alone. Makes no folder.
std::vector<CopiaTrovata> CercaCopie(const std::filesystem::path& stato);

}  // namespace parvik

// Bytes in a balanced tree of blocks (docs/document.md): the ground that a section's text stands on.
#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace parvik {

/// The bytes that are counted: by their numbers they are found.
enum class Segno { FineRiga, Apertura, Chiusura };  // CR, « and »
inline constexpr std::size_t NumSegni = 3;

constexpr char ByteDi(Segno segno) {
  constexpr std::array<char, NumSegni> Byte = {'\r', '\xAB', '\xBB'};
  return Byte[static_cast<std::size_t>(segno)];
}

/// What a stretch of text holds.
struct MisuraTesto {
  std::size_t Byte = 0;
  std::array<std::size_t, NumSegni> Segni = {};

  std::size_t Di(Segno segno) const { return Segni[static_cast<std::size_t>(segno)]; }
  MisuraTesto& operator+=(const MisuraTesto& altra);
  MisuraTesto& operator-=(const MisuraTesto& altra);
};

struct NodoTesto;

/// A part of the tree, with the measure of all that is in it.
struct RamoTesto {
  std::shared_ptr<const NodoTesto> Nodo;
  MisuraTesto Misura;
};

/// A text as a value: a copy is a pointer, and never changes, whatever becomes of the original; it may be
/// read on another thread. Everything takes time in proportion to the logarithm of the text's size, and to
/// what it takes or gives itself. A place that lies outside the text is a bug of the caller.
class AlberoTesto {
 public:
  AlberoTesto() : AlberoTesto(std::string_view()) {}
  explicit AlberoTesto(std::string_view byte);

  std::size_t Dimensione() const { return Misura().Byte; }
  const MisuraTesto& Misura() const { return radice_.Misura; }

  /// The byte at a place, which must not be the end.
  char operator[](std::size_t posto) const;

  /// What comes from `da` up to `a`, in pieces as they lie in memory, to a visitor that says whether to go
  /// on. They stay valid as long as the text or a copy of it.
  void Visita(std::size_t da, std::size_t a, const std::function<bool(std::string_view)>& visitatore) const;
  std::string Byte(std::size_t da, std::size_t a) const;

  /// How often a mark stands in front of a place.
  std::size_t Conta(Segno segno, std::size_t posto) const;
  /// Where it stands for the time `quale`, the first being 0; the text's size when it does not stand so
  /// often.
  std::size_t Trova(Segno segno, std::size_t quale) const;

  /// The text with `messi` in place of what comes from `da` up to `a`.
  AlberoTesto Con(std::size_t da, std::size_t a, std::string_view messi) const;

  /// Whether both are the same text in the same memory: then nothing needs to be compared.
  bool Stesso(const AlberoTesto& altro) const { return radice_.Nodo == altro.radice_.Nodo; }

 private:
  explicit AlberoTesto(RamoTesto radice) : radice_(std::move(radice)) {}

  RamoTesto radice_;
};

}  // namespace parvik

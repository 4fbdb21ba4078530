// Makes one mistake on purpose, the one that its argument names: what the sanitizers must find and say.
// Without them nobody would know whether a clean run of the other tests means anything.
#include <climits>
#include <cstddef>
#include <cstdlib>
#include <map>
#include <memory>
#include <string_view>

namespace {

/// Many, because a pointer to one may lie about on the stack.
void Perdi() {
  for (int i = 0; i < 100; ++i) {
    const int* volatile perso = new int(i);
    if (*perso == i) perso = nullptr;
  }
}

void LeggiOltre() {
  const auto blocco = std::make_unique<char[]>(8);
  volatile std::size_t oltre = 8;
  [[maybe_unused]] volatile char letto = blocco[oltre];
}

const volatile int* Locale() {
  volatile int locale = 1;
  const volatile int* volatile dove = &locale;
  return dove;
}

void LeggiDopoIlRitorno() {
  [[maybe_unused]] volatile int letto = *Locale();
}

void Trabocca() {
  volatile int massimo = INT_MAX;
  massimo = massimo + 1;
}

}  // namespace

int main(int quanti, char** parole) {
  const std::map<std::string_view, void (*)()> sbagli = {
      {"leak", Perdi}, {"beyond", LeggiOltre}, {"returned", LeggiDopoIlRitorno}, {"overflow", Trabocca}};
  if (quanti != 2 || !sbagli.contains(parole[1])) return EXIT_FAILURE;
  sbagli.at(parole[1])();
  return EXIT_SUCCESS;
}

// The floor of a whole process: reads a file, copies it in memory, writes the copy. Links what a program in
// this language links.
#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <string>

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  const int file = open(argv[1], O_RDONLY | O_CLOEXEC);
  if (file < 0) return 2;
  std::string letto;
  std::array<char, 65536> pezzo{};
  for (ssize_t n = 0; (n = read(file, pezzo.data(), pezzo.size())) > 0;)
    letto.append(pezzo.data(), static_cast<std::size_t>(n));
  const std::string copia = letto;
  const ssize_t scritti = write(STDOUT_FILENO, copia.data(), copia.size());
  return scritti == static_cast<ssize_t>(copia.size()) ? 0 : 2;
}

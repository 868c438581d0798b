#include "web/answers.hpp"

// The program is its functions. One call makes the linker keep their archive.
int main() {
  web_room(0);
  return 0;
}

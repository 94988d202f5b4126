#include <cstdio>

int main() {
  std::puts("Tarnwick v2.97");
  return 0;
}

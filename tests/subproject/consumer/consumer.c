#include <haldcore.h>

int main(void) {
  void* const memory = haldMalloc(64);
  haldFree(memory);
  return memory == 0;
}

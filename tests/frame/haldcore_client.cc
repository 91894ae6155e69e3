// A shared library that takes its memory from haldcore.
#include <haldcore.h>

extern "C" void* haldcore_client_round_trip(int32_t size);

void* haldcore_client_round_trip(int32_t size) {
  void* memory = haldMalloc(size);
  haldFree(memory);
  return memory;
}

// Where a caller's stack may be less aligned than the calling convention has it.
#pragma once

#if defined(__x86_64__) || defined(__i386__)
/// A function that aligns its stack to 16 bytes itself, for itself and all that it calls.
#define HALDGEN_REALIGNED [[gnu::force_align_arg_pointer]]
#else
// Elsewhere the processor, or the machine's definition, sees to it.
#define HALDGEN_REALIGNED
#endif

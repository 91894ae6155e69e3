// A receiver of Walsh codes: 16 users send at once on one line, each bit of a user as 64 chips of
// the user's own code. The codes are the rows of a Hadamard matrix, so one Walsh-Hadamard transform
// of 64 chips is the correlation with all codes.
#include <haldgen.hpp>

#include <bit>
#include <cstdio>
#include <random>

int main() {
  constexpr std::size_t kChips = 64;
  constexpr std::size_t kUsers = 16;
  constexpr int kBits = 1000;
  std::mt19937 random(1);
  std::normal_distribution<float> noise(0, 2);  // as loud as four users
  const auto code_of = [](std::size_t user) { return 4 * user + 1; };

  int wrong = 0;
  double unused_power = 0;
  for (int bit = 0; bit < kBits; ++bit) {
    const auto sent = static_cast<unsigned>(random());
    std::array<float, kChips> chips;
    for (std::size_t n = 0; n < kChips; ++n) {
      chips[n] = noise(random);
      for (std::size_t user = 0; user < kUsers; ++user) {
        // Row k of the matrix has at n the sign of the parity of k AND n.
        const bool negative =
            ((sent >> user ^ static_cast<unsigned>(std::popcount(code_of(user) & n))) & 1U) != 0;
        chips[n] += negative ? -1.F : 1.F;
      }
    }
    haldgen::wht(chips, haldgen::scale::forward_by_n);
    for (std::size_t user = 0; user < kUsers; ++user) {
      const bool received = chips[code_of(user)] < 0;
      wrong += received != ((sent >> user & 1U) != 0) ? 1 : 0;
      unused_power += chips[code_of(user) + 1] * chips[code_of(user) + 1];
    }
  }
  std::printf("%zu bits of %zu users: %d wrong; noise in an unused code %.3f\n", kUsers * kBits,
              kUsers, wrong, unused_power / (kUsers * kBits));
  return wrong <= 5 ? 0 : 1;
}

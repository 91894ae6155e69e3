// The functions of haldgen.h by transform, element type and length: what haldgen.hpp looks up.
// This file is written by haldgen-framegen; do not edit it.
// clang-format off
#ifndef HALDGEN_TABLES_HPP
#define HALDGEN_TABLES_HPP

#include <haldgen.h>

#include <bit>
#include <complex>
#include <cstddef>
#include <cstdint>

namespace haldgen::detail {

// For each transform: its elements in src and dst and how many of them there are for n points, the
// size of n points as a general function takes it, whether there is one, the functions from the
// first size on. Not all compilers, with all options, know that a function is not null.

struct DFTFwd_CToC_lengths {
  static constexpr const char* title = "Forward complex DFT";
  static constexpr const char* lengths = "2..64";
  template <bool kIsThere>
  static consteval void check_length() noexcept {
    static_assert(kIsThere,
                  "haldgen: no transform of this length. "
                  "Forward complex DFT: 2..64 points");
  }
  static constexpr std::size_t first = 2;
  static constexpr std::size_t size_of(std::size_t n) noexcept {
    return n;
  }
  static constexpr bool has(std::size_t n) noexcept {
    const std::size_t size = size_of(n);
    return (size >= 2 && size <= 64);
  }
  static constexpr std::size_t src_size(std::size_t n) noexcept {
    return n;
  }
  static constexpr std::size_t dst_size(std::size_t n) noexcept {
    return n;
  }
};

template <class T>
struct DFTFwd_CToC;

template <>
struct DFTFwd_CToC<float> : DFTFwd_CToC_lengths {
  using Src = std::complex<float>;
  using Dst = std::complex<float>;
  using Function = int32_t (*)(const Cplx32* src, Cplx32* dst, int32_t flag);
  static constexpr Function functions[] = {
      &haldgDFTFwd_CToC_2_32fc,
      &haldgDFTFwd_CToC_3_32fc,
      &haldgDFTFwd_CToC_4_32fc,
      &haldgDFTFwd_CToC_5_32fc,
      &haldgDFTFwd_CToC_6_32fc,
      &haldgDFTFwd_CToC_7_32fc,
      &haldgDFTFwd_CToC_8_32fc,
      &haldgDFTFwd_CToC_9_32fc,
      &haldgDFTFwd_CToC_10_32fc,
      &haldgDFTFwd_CToC_11_32fc,
      &haldgDFTFwd_CToC_12_32fc,
      &haldgDFTFwd_CToC_13_32fc,
      &haldgDFTFwd_CToC_14_32fc,
      &haldgDFTFwd_CToC_15_32fc,
      &haldgDFTFwd_CToC_16_32fc,
      &haldgDFTFwd_CToC_17_32fc,
      &haldgDFTFwd_CToC_18_32fc,
      &haldgDFTFwd_CToC_19_32fc,
      &haldgDFTFwd_CToC_20_32fc,
      &haldgDFTFwd_CToC_21_32fc,
      &haldgDFTFwd_CToC_22_32fc,
      &haldgDFTFwd_CToC_23_32fc,
      &haldgDFTFwd_CToC_24_32fc,
      &haldgDFTFwd_CToC_25_32fc,
      &haldgDFTFwd_CToC_26_32fc,
      &haldgDFTFwd_CToC_27_32fc,
      &haldgDFTFwd_CToC_28_32fc,
      &haldgDFTFwd_CToC_29_32fc,
      &haldgDFTFwd_CToC_30_32fc,
      &haldgDFTFwd_CToC_31_32fc,
      &haldgDFTFwd_CToC_32_32fc,
      &haldgDFTFwd_CToC_33_32fc,
      &haldgDFTFwd_CToC_34_32fc,
      &haldgDFTFwd_CToC_35_32fc,
      &haldgDFTFwd_CToC_36_32fc,
      &haldgDFTFwd_CToC_37_32fc,
      &haldgDFTFwd_CToC_38_32fc,
      &haldgDFTFwd_CToC_39_32fc,
      &haldgDFTFwd_CToC_40_32fc,
      &haldgDFTFwd_CToC_41_32fc,
      &haldgDFTFwd_CToC_42_32fc,
      &haldgDFTFwd_CToC_43_32fc,
      &haldgDFTFwd_CToC_44_32fc,
      &haldgDFTFwd_CToC_45_32fc,
      &haldgDFTFwd_CToC_46_32fc,
      &haldgDFTFwd_CToC_47_32fc,
      &haldgDFTFwd_CToC_48_32fc,
      &haldgDFTFwd_CToC_49_32fc,
      &haldgDFTFwd_CToC_50_32fc,
      &haldgDFTFwd_CToC_51_32fc,
      &haldgDFTFwd_CToC_52_32fc,
      &haldgDFTFwd_CToC_53_32fc,
      &haldgDFTFwd_CToC_54_32fc,
      &haldgDFTFwd_CToC_55_32fc,
      &haldgDFTFwd_CToC_56_32fc,
      &haldgDFTFwd_CToC_57_32fc,
      &haldgDFTFwd_CToC_58_32fc,
      &haldgDFTFwd_CToC_59_32fc,
      &haldgDFTFwd_CToC_60_32fc,
      &haldgDFTFwd_CToC_61_32fc,
      &haldgDFTFwd_CToC_62_32fc,
      &haldgDFTFwd_CToC_63_32fc,
      &haldgDFTFwd_CToC_64_32fc,
  };
};

template <>
struct DFTFwd_CToC<double> : DFTFwd_CToC_lengths {
  using Src = std::complex<double>;
  using Dst = std::complex<double>;
  using Function = int32_t (*)(const Cplx64* src, Cplx64* dst, int32_t flag);
  static constexpr Function functions[] = {
      &haldgDFTFwd_CToC_2_64fc,
      &haldgDFTFwd_CToC_3_64fc,
      &haldgDFTFwd_CToC_4_64fc,
      &haldgDFTFwd_CToC_5_64fc,
      &haldgDFTFwd_CToC_6_64fc,
      &haldgDFTFwd_CToC_7_64fc,
      &haldgDFTFwd_CToC_8_64fc,
      &haldgDFTFwd_CToC_9_64fc,
      &haldgDFTFwd_CToC_10_64fc,
      &haldgDFTFwd_CToC_11_64fc,
      &haldgDFTFwd_CToC_12_64fc,
      &haldgDFTFwd_CToC_13_64fc,
      &haldgDFTFwd_CToC_14_64fc,
      &haldgDFTFwd_CToC_15_64fc,
      &haldgDFTFwd_CToC_16_64fc,
      &haldgDFTFwd_CToC_17_64fc,
      &haldgDFTFwd_CToC_18_64fc,
      &haldgDFTFwd_CToC_19_64fc,
      &haldgDFTFwd_CToC_20_64fc,
      &haldgDFTFwd_CToC_21_64fc,
      &haldgDFTFwd_CToC_22_64fc,
      &haldgDFTFwd_CToC_23_64fc,
      &haldgDFTFwd_CToC_24_64fc,
      &haldgDFTFwd_CToC_25_64fc,
      &haldgDFTFwd_CToC_26_64fc,
      &haldgDFTFwd_CToC_27_64fc,
      &haldgDFTFwd_CToC_28_64fc,
      &haldgDFTFwd_CToC_29_64fc,
      &haldgDFTFwd_CToC_30_64fc,
      &haldgDFTFwd_CToC_31_64fc,
      &haldgDFTFwd_CToC_32_64fc,
      &haldgDFTFwd_CToC_33_64fc,
      &haldgDFTFwd_CToC_34_64fc,
      &haldgDFTFwd_CToC_35_64fc,
      &haldgDFTFwd_CToC_36_64fc,
      &haldgDFTFwd_CToC_37_64fc,
      &haldgDFTFwd_CToC_38_64fc,
      &haldgDFTFwd_CToC_39_64fc,
      &haldgDFTFwd_CToC_40_64fc,
      &haldgDFTFwd_CToC_41_64fc,
      &haldgDFTFwd_CToC_42_64fc,
      &haldgDFTFwd_CToC_43_64fc,
      &haldgDFTFwd_CToC_44_64fc,
      &haldgDFTFwd_CToC_45_64fc,
      &haldgDFTFwd_CToC_46_64fc,
      &haldgDFTFwd_CToC_47_64fc,
      &haldgDFTFwd_CToC_48_64fc,
      &haldgDFTFwd_CToC_49_64fc,
      &haldgDFTFwd_CToC_50_64fc,
      &haldgDFTFwd_CToC_51_64fc,
      &haldgDFTFwd_CToC_52_64fc,
      &haldgDFTFwd_CToC_53_64fc,
      &haldgDFTFwd_CToC_54_64fc,
      &haldgDFTFwd_CToC_55_64fc,
      &haldgDFTFwd_CToC_56_64fc,
      &haldgDFTFwd_CToC_57_64fc,
      &haldgDFTFwd_CToC_58_64fc,
      &haldgDFTFwd_CToC_59_64fc,
      &haldgDFTFwd_CToC_60_64fc,
      &haldgDFTFwd_CToC_61_64fc,
      &haldgDFTFwd_CToC_62_64fc,
      &haldgDFTFwd_CToC_63_64fc,
      &haldgDFTFwd_CToC_64_64fc,
  };
};

struct DFTInv_CToC_lengths {
  static constexpr const char* title = "Inverse complex DFT";
  static constexpr const char* lengths = "2..64";
  template <bool kIsThere>
  static consteval void check_length() noexcept {
    static_assert(kIsThere,
                  "haldgen: no transform of this length. "
                  "Inverse complex DFT: 2..64 points");
  }
  static constexpr std::size_t first = 2;
  static constexpr std::size_t size_of(std::size_t n) noexcept {
    return n;
  }
  static constexpr bool has(std::size_t n) noexcept {
    const std::size_t size = size_of(n);
    return (size >= 2 && size <= 64);
  }
  static constexpr std::size_t src_size(std::size_t n) noexcept {
    return n;
  }
  static constexpr std::size_t dst_size(std::size_t n) noexcept {
    return n;
  }
};

template <class T>
struct DFTInv_CToC;

template <>
struct DFTInv_CToC<float> : DFTInv_CToC_lengths {
  using Src = std::complex<float>;
  using Dst = std::complex<float>;
  using Function = int32_t (*)(const Cplx32* src, Cplx32* dst, int32_t flag);
  static constexpr Function functions[] = {
      &haldgDFTInv_CToC_2_32fc,
      &haldgDFTInv_CToC_3_32fc,
      &haldgDFTInv_CToC_4_32fc,
      &haldgDFTInv_CToC_5_32fc,
      &haldgDFTInv_CToC_6_32fc,
      &haldgDFTInv_CToC_7_32fc,
      &haldgDFTInv_CToC_8_32fc,
      &haldgDFTInv_CToC_9_32fc,
      &haldgDFTInv_CToC_10_32fc,
      &haldgDFTInv_CToC_11_32fc,
      &haldgDFTInv_CToC_12_32fc,
      &haldgDFTInv_CToC_13_32fc,
      &haldgDFTInv_CToC_14_32fc,
      &haldgDFTInv_CToC_15_32fc,
      &haldgDFTInv_CToC_16_32fc,
      &haldgDFTInv_CToC_17_32fc,
      &haldgDFTInv_CToC_18_32fc,
      &haldgDFTInv_CToC_19_32fc,
      &haldgDFTInv_CToC_20_32fc,
      &haldgDFTInv_CToC_21_32fc,
      &haldgDFTInv_CToC_22_32fc,
      &haldgDFTInv_CToC_23_32fc,
      &haldgDFTInv_CToC_24_32fc,
      &haldgDFTInv_CToC_25_32fc,
      &haldgDFTInv_CToC_26_32fc,
      &haldgDFTInv_CToC_27_32fc,
      &haldgDFTInv_CToC_28_32fc,
      &haldgDFTInv_CToC_29_32fc,
      &haldgDFTInv_CToC_30_32fc,
      &haldgDFTInv_CToC_31_32fc,
      &haldgDFTInv_CToC_32_32fc,
      &haldgDFTInv_CToC_33_32fc,
      &haldgDFTInv_CToC_34_32fc,
      &haldgDFTInv_CToC_35_32fc,
      &haldgDFTInv_CToC_36_32fc,
      &haldgDFTInv_CToC_37_32fc,
      &haldgDFTInv_CToC_38_32fc,
      &haldgDFTInv_CToC_39_32fc,
      &haldgDFTInv_CToC_40_32fc,
      &haldgDFTInv_CToC_41_32fc,
      &haldgDFTInv_CToC_42_32fc,
      &haldgDFTInv_CToC_43_32fc,
      &haldgDFTInv_CToC_44_32fc,
      &haldgDFTInv_CToC_45_32fc,
      &haldgDFTInv_CToC_46_32fc,
      &haldgDFTInv_CToC_47_32fc,
      &haldgDFTInv_CToC_48_32fc,
      &haldgDFTInv_CToC_49_32fc,
      &haldgDFTInv_CToC_50_32fc,
      &haldgDFTInv_CToC_51_32fc,
      &haldgDFTInv_CToC_52_32fc,
      &haldgDFTInv_CToC_53_32fc,
      &haldgDFTInv_CToC_54_32fc,
      &haldgDFTInv_CToC_55_32fc,
      &haldgDFTInv_CToC_56_32fc,
      &haldgDFTInv_CToC_57_32fc,
      &haldgDFTInv_CToC_58_32fc,
      &haldgDFTInv_CToC_59_32fc,
      &haldgDFTInv_CToC_60_32fc,
      &haldgDFTInv_CToC_61_32fc,
      &haldgDFTInv_CToC_62_32fc,
      &haldgDFTInv_CToC_63_32fc,
      &haldgDFTInv_CToC_64_32fc,
  };
};

template <>
struct DFTInv_CToC<double> : DFTInv_CToC_lengths {
  using Src = std::complex<double>;
  using Dst = std::complex<double>;
  using Function = int32_t (*)(const Cplx64* src, Cplx64* dst, int32_t flag);
  static constexpr Function functions[] = {
      &haldgDFTInv_CToC_2_64fc,
      &haldgDFTInv_CToC_3_64fc,
      &haldgDFTInv_CToC_4_64fc,
      &haldgDFTInv_CToC_5_64fc,
      &haldgDFTInv_CToC_6_64fc,
      &haldgDFTInv_CToC_7_64fc,
      &haldgDFTInv_CToC_8_64fc,
      &haldgDFTInv_CToC_9_64fc,
      &haldgDFTInv_CToC_10_64fc,
      &haldgDFTInv_CToC_11_64fc,
      &haldgDFTInv_CToC_12_64fc,
      &haldgDFTInv_CToC_13_64fc,
      &haldgDFTInv_CToC_14_64fc,
      &haldgDFTInv_CToC_15_64fc,
      &haldgDFTInv_CToC_16_64fc,
      &haldgDFTInv_CToC_17_64fc,
      &haldgDFTInv_CToC_18_64fc,
      &haldgDFTInv_CToC_19_64fc,
      &haldgDFTInv_CToC_20_64fc,
      &haldgDFTInv_CToC_21_64fc,
      &haldgDFTInv_CToC_22_64fc,
      &haldgDFTInv_CToC_23_64fc,
      &haldgDFTInv_CToC_24_64fc,
      &haldgDFTInv_CToC_25_64fc,
      &haldgDFTInv_CToC_26_64fc,
      &haldgDFTInv_CToC_27_64fc,
      &haldgDFTInv_CToC_28_64fc,
      &haldgDFTInv_CToC_29_64fc,
      &haldgDFTInv_CToC_30_64fc,
      &haldgDFTInv_CToC_31_64fc,
      &haldgDFTInv_CToC_32_64fc,
      &haldgDFTInv_CToC_33_64fc,
      &haldgDFTInv_CToC_34_64fc,
      &haldgDFTInv_CToC_35_64fc,
      &haldgDFTInv_CToC_36_64fc,
      &haldgDFTInv_CToC_37_64fc,
      &haldgDFTInv_CToC_38_64fc,
      &haldgDFTInv_CToC_39_64fc,
      &haldgDFTInv_CToC_40_64fc,
      &haldgDFTInv_CToC_41_64fc,
      &haldgDFTInv_CToC_42_64fc,
      &haldgDFTInv_CToC_43_64fc,
      &haldgDFTInv_CToC_44_64fc,
      &haldgDFTInv_CToC_45_64fc,
      &haldgDFTInv_CToC_46_64fc,
      &haldgDFTInv_CToC_47_64fc,
      &haldgDFTInv_CToC_48_64fc,
      &haldgDFTInv_CToC_49_64fc,
      &haldgDFTInv_CToC_50_64fc,
      &haldgDFTInv_CToC_51_64fc,
      &haldgDFTInv_CToC_52_64fc,
      &haldgDFTInv_CToC_53_64fc,
      &haldgDFTInv_CToC_54_64fc,
      &haldgDFTInv_CToC_55_64fc,
      &haldgDFTInv_CToC_56_64fc,
      &haldgDFTInv_CToC_57_64fc,
      &haldgDFTInv_CToC_58_64fc,
      &haldgDFTInv_CToC_59_64fc,
      &haldgDFTInv_CToC_60_64fc,
      &haldgDFTInv_CToC_61_64fc,
      &haldgDFTInv_CToC_62_64fc,
      &haldgDFTInv_CToC_63_64fc,
      &haldgDFTInv_CToC_64_64fc,
  };
};

struct DFTFwd_RToCCS_lengths {
  static constexpr const char* title = "Forward real DFT to CCS";
  static constexpr const char* lengths = "2..64";
  template <bool kIsThere>
  static consteval void check_length() noexcept {
    static_assert(kIsThere,
                  "haldgen: no transform of this length. "
                  "Forward real DFT to CCS: 2..64 points");
  }
  static constexpr std::size_t first = 2;
  static constexpr std::size_t size_of(std::size_t n) noexcept {
    return n;
  }
  static constexpr bool has(std::size_t n) noexcept {
    const std::size_t size = size_of(n);
    return (size >= 2 && size <= 64);
  }
  static constexpr std::size_t src_size(std::size_t n) noexcept {
    return n;
  }
  static constexpr std::size_t dst_size(std::size_t n) noexcept {
    return n / 2 + 1;
  }
};

template <class T>
struct DFTFwd_RToCCS;

template <>
struct DFTFwd_RToCCS<float> : DFTFwd_RToCCS_lengths {
  using Src = float;
  using Dst = std::complex<float>;
  using Function = int32_t (*)(const float* src, float* dst, int32_t flag);
  static constexpr Function functions[] = {
      &haldgDFTFwd_RToCCS_2_32f,
      &haldgDFTFwd_RToCCS_3_32f,
      &haldgDFTFwd_RToCCS_4_32f,
      &haldgDFTFwd_RToCCS_5_32f,
      &haldgDFTFwd_RToCCS_6_32f,
      &haldgDFTFwd_RToCCS_7_32f,
      &haldgDFTFwd_RToCCS_8_32f,
      &haldgDFTFwd_RToCCS_9_32f,
      &haldgDFTFwd_RToCCS_10_32f,
      &haldgDFTFwd_RToCCS_11_32f,
      &haldgDFTFwd_RToCCS_12_32f,
      &haldgDFTFwd_RToCCS_13_32f,
      &haldgDFTFwd_RToCCS_14_32f,
      &haldgDFTFwd_RToCCS_15_32f,
      &haldgDFTFwd_RToCCS_16_32f,
      &haldgDFTFwd_RToCCS_17_32f,
      &haldgDFTFwd_RToCCS_18_32f,
      &haldgDFTFwd_RToCCS_19_32f,
      &haldgDFTFwd_RToCCS_20_32f,
      &haldgDFTFwd_RToCCS_21_32f,
      &haldgDFTFwd_RToCCS_22_32f,
      &haldgDFTFwd_RToCCS_23_32f,
      &haldgDFTFwd_RToCCS_24_32f,
      &haldgDFTFwd_RToCCS_25_32f,
      &haldgDFTFwd_RToCCS_26_32f,
      &haldgDFTFwd_RToCCS_27_32f,
      &haldgDFTFwd_RToCCS_28_32f,
      &haldgDFTFwd_RToCCS_29_32f,
      &haldgDFTFwd_RToCCS_30_32f,
      &haldgDFTFwd_RToCCS_31_32f,
      &haldgDFTFwd_RToCCS_32_32f,
      &haldgDFTFwd_RToCCS_33_32f,
      &haldgDFTFwd_RToCCS_34_32f,
      &haldgDFTFwd_RToCCS_35_32f,
      &haldgDFTFwd_RToCCS_36_32f,
      &haldgDFTFwd_RToCCS_37_32f,
      &haldgDFTFwd_RToCCS_38_32f,
      &haldgDFTFwd_RToCCS_39_32f,
      &haldgDFTFwd_RToCCS_40_32f,
      &haldgDFTFwd_RToCCS_41_32f,
      &haldgDFTFwd_RToCCS_42_32f,
      &haldgDFTFwd_RToCCS_43_32f,
      &haldgDFTFwd_RToCCS_44_32f,
      &haldgDFTFwd_RToCCS_45_32f,
      &haldgDFTFwd_RToCCS_46_32f,
      &haldgDFTFwd_RToCCS_47_32f,
      &haldgDFTFwd_RToCCS_48_32f,
      &haldgDFTFwd_RToCCS_49_32f,
      &haldgDFTFwd_RToCCS_50_32f,
      &haldgDFTFwd_RToCCS_51_32f,
      &haldgDFTFwd_RToCCS_52_32f,
      &haldgDFTFwd_RToCCS_53_32f,
      &haldgDFTFwd_RToCCS_54_32f,
      &haldgDFTFwd_RToCCS_55_32f,
      &haldgDFTFwd_RToCCS_56_32f,
      &haldgDFTFwd_RToCCS_57_32f,
      &haldgDFTFwd_RToCCS_58_32f,
      &haldgDFTFwd_RToCCS_59_32f,
      &haldgDFTFwd_RToCCS_60_32f,
      &haldgDFTFwd_RToCCS_61_32f,
      &haldgDFTFwd_RToCCS_62_32f,
      &haldgDFTFwd_RToCCS_63_32f,
      &haldgDFTFwd_RToCCS_64_32f,
  };
};

template <>
struct DFTFwd_RToCCS<double> : DFTFwd_RToCCS_lengths {
  using Src = double;
  using Dst = std::complex<double>;
  using Function = int32_t (*)(const double* src, double* dst, int32_t flag);
  static constexpr Function functions[] = {
      &haldgDFTFwd_RToCCS_2_64f,
      &haldgDFTFwd_RToCCS_3_64f,
      &haldgDFTFwd_RToCCS_4_64f,
      &haldgDFTFwd_RToCCS_5_64f,
      &haldgDFTFwd_RToCCS_6_64f,
      &haldgDFTFwd_RToCCS_7_64f,
      &haldgDFTFwd_RToCCS_8_64f,
      &haldgDFTFwd_RToCCS_9_64f,
      &haldgDFTFwd_RToCCS_10_64f,
      &haldgDFTFwd_RToCCS_11_64f,
      &haldgDFTFwd_RToCCS_12_64f,
      &haldgDFTFwd_RToCCS_13_64f,
      &haldgDFTFwd_RToCCS_14_64f,
      &haldgDFTFwd_RToCCS_15_64f,
      &haldgDFTFwd_RToCCS_16_64f,
      &haldgDFTFwd_RToCCS_17_64f,
      &haldgDFTFwd_RToCCS_18_64f,
      &haldgDFTFwd_RToCCS_19_64f,
      &haldgDFTFwd_RToCCS_20_64f,
      &haldgDFTFwd_RToCCS_21_64f,
      &haldgDFTFwd_RToCCS_22_64f,
      &haldgDFTFwd_RToCCS_23_64f,
      &haldgDFTFwd_RToCCS_24_64f,
      &haldgDFTFwd_RToCCS_25_64f,
      &haldgDFTFwd_RToCCS_26_64f,
      &haldgDFTFwd_RToCCS_27_64f,
      &haldgDFTFwd_RToCCS_28_64f,
      &haldgDFTFwd_RToCCS_29_64f,
      &haldgDFTFwd_RToCCS_30_64f,
      &haldgDFTFwd_RToCCS_31_64f,
      &haldgDFTFwd_RToCCS_32_64f,
      &haldgDFTFwd_RToCCS_33_64f,
      &haldgDFTFwd_RToCCS_34_64f,
      &haldgDFTFwd_RToCCS_35_64f,
      &haldgDFTFwd_RToCCS_36_64f,
      &haldgDFTFwd_RToCCS_37_64f,
      &haldgDFTFwd_RToCCS_38_64f,
      &haldgDFTFwd_RToCCS_39_64f,
      &haldgDFTFwd_RToCCS_40_64f,
      &haldgDFTFwd_RToCCS_41_64f,
      &haldgDFTFwd_RToCCS_42_64f,
      &haldgDFTFwd_RToCCS_43_64f,
      &haldgDFTFwd_RToCCS_44_64f,
      &haldgDFTFwd_RToCCS_45_64f,
      &haldgDFTFwd_RToCCS_46_64f,
      &haldgDFTFwd_RToCCS_47_64f,
      &haldgDFTFwd_RToCCS_48_64f,
      &haldgDFTFwd_RToCCS_49_64f,
      &haldgDFTFwd_RToCCS_50_64f,
      &haldgDFTFwd_RToCCS_51_64f,
      &haldgDFTFwd_RToCCS_52_64f,
      &haldgDFTFwd_RToCCS_53_64f,
      &haldgDFTFwd_RToCCS_54_64f,
      &haldgDFTFwd_RToCCS_55_64f,
      &haldgDFTFwd_RToCCS_56_64f,
      &haldgDFTFwd_RToCCS_57_64f,
      &haldgDFTFwd_RToCCS_58_64f,
      &haldgDFTFwd_RToCCS_59_64f,
      &haldgDFTFwd_RToCCS_60_64f,
      &haldgDFTFwd_RToCCS_61_64f,
      &haldgDFTFwd_RToCCS_62_64f,
      &haldgDFTFwd_RToCCS_63_64f,
      &haldgDFTFwd_RToCCS_64_64f,
  };
};

struct DFTFwd_RToPack_lengths {
  static constexpr const char* title = "Forward real DFT to Pack";
  static constexpr const char* lengths = "2..64";
  template <bool kIsThere>
  static consteval void check_length() noexcept {
    static_assert(kIsThere,
                  "haldgen: no transform of this length. "
                  "Forward real DFT to Pack: 2..64 points");
  }
  static constexpr std::size_t first = 2;
  static constexpr std::size_t size_of(std::size_t n) noexcept {
    return n;
  }
  static constexpr bool has(std::size_t n) noexcept {
    const std::size_t size = size_of(n);
    return (size >= 2 && size <= 64);
  }
  static constexpr std::size_t src_size(std::size_t n) noexcept {
    return n;
  }
  static constexpr std::size_t dst_size(std::size_t n) noexcept {
    return n;
  }
};

template <class T>
struct DFTFwd_RToPack;

template <>
struct DFTFwd_RToPack<float> : DFTFwd_RToPack_lengths {
  using Src = float;
  using Dst = float;
  using Function = int32_t (*)(const float* src, float* dst, int32_t flag);
  static constexpr Function functions[] = {
      &haldgDFTFwd_RToPack_2_32f,
      &haldgDFTFwd_RToPack_3_32f,
      &haldgDFTFwd_RToPack_4_32f,
      &haldgDFTFwd_RToPack_5_32f,
      &haldgDFTFwd_RToPack_6_32f,
      &haldgDFTFwd_RToPack_7_32f,
      &haldgDFTFwd_RToPack_8_32f,
      &haldgDFTFwd_RToPack_9_32f,
      &haldgDFTFwd_RToPack_10_32f,
      &haldgDFTFwd_RToPack_11_32f,
      &haldgDFTFwd_RToPack_12_32f,
      &haldgDFTFwd_RToPack_13_32f,
      &haldgDFTFwd_RToPack_14_32f,
      &haldgDFTFwd_RToPack_15_32f,
      &haldgDFTFwd_RToPack_16_32f,
      &haldgDFTFwd_RToPack_17_32f,
      &haldgDFTFwd_RToPack_18_32f,
      &haldgDFTFwd_RToPack_19_32f,
      &haldgDFTFwd_RToPack_20_32f,
      &haldgDFTFwd_RToPack_21_32f,
      &haldgDFTFwd_RToPack_22_32f,
      &haldgDFTFwd_RToPack_23_32f,
      &haldgDFTFwd_RToPack_24_32f,
      &haldgDFTFwd_RToPack_25_32f,
      &haldgDFTFwd_RToPack_26_32f,
      &haldgDFTFwd_RToPack_27_32f,
      &haldgDFTFwd_RToPack_28_32f,
      &haldgDFTFwd_RToPack_29_32f,
      &haldgDFTFwd_RToPack_30_32f,
      &haldgDFTFwd_RToPack_31_32f,
      &haldgDFTFwd_RToPack_32_32f,
      &haldgDFTFwd_RToPack_33_32f,
      &haldgDFTFwd_RToPack_34_32f,
      &haldgDFTFwd_RToPack_35_32f,
      &haldgDFTFwd_RToPack_36_32f,
      &haldgDFTFwd_RToPack_37_32f,
      &haldgDFTFwd_RToPack_38_32f,
      &haldgDFTFwd_RToPack_39_32f,
      &haldgDFTFwd_RToPack_40_32f,
      &haldgDFTFwd_RToPack_41_32f,
      &haldgDFTFwd_RToPack_42_32f,
      &haldgDFTFwd_RToPack_43_32f,
      &haldgDFTFwd_RToPack_44_32f,
      &haldgDFTFwd_RToPack_45_32f,
      &haldgDFTFwd_RToPack_46_32f,
      &haldgDFTFwd_RToPack_47_32f,
      &haldgDFTFwd_RToPack_48_32f,
      &haldgDFTFwd_RToPack_49_32f,
      &haldgDFTFwd_RToPack_50_32f,
      &haldgDFTFwd_RToPack_51_32f,
      &haldgDFTFwd_RToPack_52_32f,
      &haldgDFTFwd_RToPack_53_32f,
      &haldgDFTFwd_RToPack_54_32f,
      &haldgDFTFwd_RToPack_55_32f,
      &haldgDFTFwd_RToPack_56_32f,
      &haldgDFTFwd_RToPack_57_32f,
      &haldgDFTFwd_RToPack_58_32f,
      &haldgDFTFwd_RToPack_59_32f,
      &haldgDFTFwd_RToPack_60_32f,
      &haldgDFTFwd_RToPack_61_32f,
      &haldgDFTFwd_RToPack_62_32f,
      &haldgDFTFwd_RToPack_63_32f,
      &haldgDFTFwd_RToPack_64_32f,
  };
};

template <>
struct DFTFwd_RToPack<double> : DFTFwd_RToPack_lengths {
  using Src = double;
  using Dst = double;
  using Function = int32_t (*)(const double* src, double* dst, int32_t flag);
  static constexpr Function functions[] = {
      &haldgDFTFwd_RToPack_2_64f,
      &haldgDFTFwd_RToPack_3_64f,
      &haldgDFTFwd_RToPack_4_64f,
      &haldgDFTFwd_RToPack_5_64f,
      &haldgDFTFwd_RToPack_6_64f,
      &haldgDFTFwd_RToPack_7_64f,
      &haldgDFTFwd_RToPack_8_64f,
      &haldgDFTFwd_RToPack_9_64f,
      &haldgDFTFwd_RToPack_10_64f,
      &haldgDFTFwd_RToPack_11_64f,
      &haldgDFTFwd_RToPack_12_64f,
      &haldgDFTFwd_RToPack_13_64f,
      &haldgDFTFwd_RToPack_14_64f,
      &haldgDFTFwd_RToPack_15_64f,
      &haldgDFTFwd_RToPack_16_64f,
      &haldgDFTFwd_RToPack_17_64f,
      &haldgDFTFwd_RToPack_18_64f,
      &haldgDFTFwd_RToPack_19_64f,
      &haldgDFTFwd_RToPack_20_64f,
      &haldgDFTFwd_RToPack_21_64f,
      &haldgDFTFwd_RToPack_22_64f,
      &haldgDFTFwd_RToPack_23_64f,
      &haldgDFTFwd_RToPack_24_64f,
      &haldgDFTFwd_RToPack_25_64f,
      &haldgDFTFwd_RToPack_26_64f,
      &haldgDFTFwd_RToPack_27_64f,
      &haldgDFTFwd_RToPack_28_64f,
      &haldgDFTFwd_RToPack_29_64f,
      &haldgDFTFwd_RToPack_30_64f,
      &haldgDFTFwd_RToPack_31_64f,
      &haldgDFTFwd_RToPack_32_64f,
      &haldgDFTFwd_RToPack_33_64f,
      &haldgDFTFwd_RToPack_34_64f,
      &haldgDFTFwd_RToPack_35_64f,
      &haldgDFTFwd_RToPack_36_64f,
      &haldgDFTFwd_RToPack_37_64f,
      &haldgDFTFwd_RToPack_38_64f,
      &haldgDFTFwd_RToPack_39_64f,
      &haldgDFTFwd_RToPack_40_64f,
      &haldgDFTFwd_RToPack_41_64f,
      &haldgDFTFwd_RToPack_42_64f,
      &haldgDFTFwd_RToPack_43_64f,
      &haldgDFTFwd_RToPack_44_64f,
      &haldgDFTFwd_RToPack_45_64f,
      &haldgDFTFwd_RToPack_46_64f,
      &haldgDFTFwd_RToPack_47_64f,
      &haldgDFTFwd_RToPack_48_64f,
      &haldgDFTFwd_RToPack_49_64f,
      &haldgDFTFwd_RToPack_50_64f,
      &haldgDFTFwd_RToPack_51_64f,
      &haldgDFTFwd_RToPack_52_64f,
      &haldgDFTFwd_RToPack_53_64f,
      &haldgDFTFwd_RToPack_54_64f,
      &haldgDFTFwd_RToPack_55_64f,
      &haldgDFTFwd_RToPack_56_64f,
      &haldgDFTFwd_RToPack_57_64f,
      &haldgDFTFwd_RToPack_58_64f,
      &haldgDFTFwd_RToPack_59_64f,
      &haldgDFTFwd_RToPack_60_64f,
      &haldgDFTFwd_RToPack_61_64f,
      &haldgDFTFwd_RToPack_62_64f,
      &haldgDFTFwd_RToPack_63_64f,
      &haldgDFTFwd_RToPack_64_64f,
  };
};

struct DFTFwd_RToPerm_lengths {
  static constexpr const char* title = "Forward real DFT to Perm";
  static constexpr const char* lengths = "2..64";
  template <bool kIsThere>
  static consteval void check_length() noexcept {
    static_assert(kIsThere,
                  "haldgen: no transform of this length. "
                  "Forward real DFT to Perm: 2..64 points");
  }
  static constexpr std::size_t first = 2;
  static constexpr std::size_t size_of(std::size_t n) noexcept {
    return n;
  }
  static constexpr bool has(std::size_t n) noexcept {
    const std::size_t size = size_of(n);
    return (size >= 2 && size <= 64);
  }
  static constexpr std::size_t src_size(std::size_t n) noexcept {
    return n;
  }
  static constexpr std::size_t dst_size(std::size_t n) noexcept {
    return n;
  }
};

template <class T>
struct DFTFwd_RToPerm;

template <>
struct DFTFwd_RToPerm<float> : DFTFwd_RToPerm_lengths {
  using Src = float;
  using Dst = float;
  using Function = int32_t (*)(const float* src, float* dst, int32_t flag);
  static constexpr Function functions[] = {
      &haldgDFTFwd_RToPerm_2_32f,
      &haldgDFTFwd_RToPerm_3_32f,
      &haldgDFTFwd_RToPerm_4_32f,
      &haldgDFTFwd_RToPerm_5_32f,
      &haldgDFTFwd_RToPerm_6_32f,
      &haldgDFTFwd_RToPerm_7_32f,
      &haldgDFTFwd_RToPerm_8_32f,
      &haldgDFTFwd_RToPerm_9_32f,
      &haldgDFTFwd_RToPerm_10_32f,
      &haldgDFTFwd_RToPerm_11_32f,
      &haldgDFTFwd_RToPerm_12_32f,
      &haldgDFTFwd_RToPerm_13_32f,
      &haldgDFTFwd_RToPerm_14_32f,
      &haldgDFTFwd_RToPerm_15_32f,
      &haldgDFTFwd_RToPerm_16_32f,
      &haldgDFTFwd_RToPerm_17_32f,
      &haldgDFTFwd_RToPerm_18_32f,
      &haldgDFTFwd_RToPerm_19_32f,
      &haldgDFTFwd_RToPerm_20_32f,
      &haldgDFTFwd_RToPerm_21_32f,
      &haldgDFTFwd_RToPerm_22_32f,
      &haldgDFTFwd_RToPerm_23_32f,
      &haldgDFTFwd_RToPerm_24_32f,
      &haldgDFTFwd_RToPerm_25_32f,
      &haldgDFTFwd_RToPerm_26_32f,
      &haldgDFTFwd_RToPerm_27_32f,
      &haldgDFTFwd_RToPerm_28_32f,
      &haldgDFTFwd_RToPerm_29_32f,
      &haldgDFTFwd_RToPerm_30_32f,
      &haldgDFTFwd_RToPerm_31_32f,
      &haldgDFTFwd_RToPerm_32_32f,
      &haldgDFTFwd_RToPerm_33_32f,
      &haldgDFTFwd_RToPerm_34_32f,
      &haldgDFTFwd_RToPerm_35_32f,
      &haldgDFTFwd_RToPerm_36_32f,
      &haldgDFTFwd_RToPerm_37_32f,
      &haldgDFTFwd_RToPerm_38_32f,
      &haldgDFTFwd_RToPerm_39_32f,
      &haldgDFTFwd_RToPerm_40_32f,
      &haldgDFTFwd_RToPerm_41_32f,
      &haldgDFTFwd_RToPerm_42_32f,
      &haldgDFTFwd_RToPerm_43_32f,
      &haldgDFTFwd_RToPerm_44_32f,
      &haldgDFTFwd_RToPerm_45_32f,
      &haldgDFTFwd_RToPerm_46_32f,
      &haldgDFTFwd_RToPerm_47_32f,
      &haldgDFTFwd_RToPerm_48_32f,
      &haldgDFTFwd_RToPerm_49_32f,
      &haldgDFTFwd_RToPerm_50_32f,
      &haldgDFTFwd_RToPerm_51_32f,
      &haldgDFTFwd_RToPerm_52_32f,
      &haldgDFTFwd_RToPerm_53_32f,
      &haldgDFTFwd_RToPerm_54_32f,
      &haldgDFTFwd_RToPerm_55_32f,
      &haldgDFTFwd_RToPerm_56_32f,
      &haldgDFTFwd_RToPerm_57_32f,
      &haldgDFTFwd_RToPerm_58_32f,
      &haldgDFTFwd_RToPerm_59_32f,
      &haldgDFTFwd_RToPerm_60_32f,
      &haldgDFTFwd_RToPerm_61_32f,
      &haldgDFTFwd_RToPerm_62_32f,
      &haldgDFTFwd_RToPerm_63_32f,
      &haldgDFTFwd_RToPerm_64_32f,
  };
};

template <>
struct DFTFwd_RToPerm<double> : DFTFwd_RToPerm_lengths {
  using Src = double;
  using Dst = double;
  using Function = int32_t (*)(const double* src, double* dst, int32_t flag);
  static constexpr Function functions[] = {
      &haldgDFTFwd_RToPerm_2_64f,
      &haldgDFTFwd_RToPerm_3_64f,
      &haldgDFTFwd_RToPerm_4_64f,
      &haldgDFTFwd_RToPerm_5_64f,
      &haldgDFTFwd_RToPerm_6_64f,
      &haldgDFTFwd_RToPerm_7_64f,
      &haldgDFTFwd_RToPerm_8_64f,
      &haldgDFTFwd_RToPerm_9_64f,
      &haldgDFTFwd_RToPerm_10_64f,
      &haldgDFTFwd_RToPerm_11_64f,
      &haldgDFTFwd_RToPerm_12_64f,
      &haldgDFTFwd_RToPerm_13_64f,
      &haldgDFTFwd_RToPerm_14_64f,
      &haldgDFTFwd_RToPerm_15_64f,
      &haldgDFTFwd_RToPerm_16_64f,
      &haldgDFTFwd_RToPerm_17_64f,
      &haldgDFTFwd_RToPerm_18_64f,
      &haldgDFTFwd_RToPerm_19_64f,
      &haldgDFTFwd_RToPerm_20_64f,
      &haldgDFTFwd_RToPerm_21_64f,
      &haldgDFTFwd_RToPerm_22_64f,
      &haldgDFTFwd_RToPerm_23_64f,
      &haldgDFTFwd_RToPerm_24_64f,
      &haldgDFTFwd_RToPerm_25_64f,
      &haldgDFTFwd_RToPerm_26_64f,
      &haldgDFTFwd_RToPerm_27_64f,
      &haldgDFTFwd_RToPerm_28_64f,
      &haldgDFTFwd_RToPerm_29_64f,
      &haldgDFTFwd_RToPerm_30_64f,
      &haldgDFTFwd_RToPerm_31_64f,
      &haldgDFTFwd_RToPerm_32_64f,
      &haldgDFTFwd_RToPerm_33_64f,
      &haldgDFTFwd_RToPerm_34_64f,
      &haldgDFTFwd_RToPerm_35_64f,
      &haldgDFTFwd_RToPerm_36_64f,
      &haldgDFTFwd_RToPerm_37_64f,
      &haldgDFTFwd_RToPerm_38_64f,
      &haldgDFTFwd_RToPerm_39_64f,
      &haldgDFTFwd_RToPerm_40_64f,
      &haldgDFTFwd_RToPerm_41_64f,
      &haldgDFTFwd_RToPerm_42_64f,
      &haldgDFTFwd_RToPerm_43_64f,
      &haldgDFTFwd_RToPerm_44_64f,
      &haldgDFTFwd_RToPerm_45_64f,
      &haldgDFTFwd_RToPerm_46_64f,
      &haldgDFTFwd_RToPerm_47_64f,
      &haldgDFTFwd_RToPerm_48_64f,
      &haldgDFTFwd_RToPerm_49_64f,
      &haldgDFTFwd_RToPerm_50_64f,
      &haldgDFTFwd_RToPerm_51_64f,
      &haldgDFTFwd_RToPerm_52_64f,
      &haldgDFTFwd_RToPerm_53_64f,
      &haldgDFTFwd_RToPerm_54_64f,
      &haldgDFTFwd_RToPerm_55_64f,
      &haldgDFTFwd_RToPerm_56_64f,
      &haldgDFTFwd_RToPerm_57_64f,
      &haldgDFTFwd_RToPerm_58_64f,
      &haldgDFTFwd_RToPerm_59_64f,
      &haldgDFTFwd_RToPerm_60_64f,
      &haldgDFTFwd_RToPerm_61_64f,
      &haldgDFTFwd_RToPerm_62_64f,
      &haldgDFTFwd_RToPerm_63_64f,
      &haldgDFTFwd_RToPerm_64_64f,
  };
};

struct DFTInv_CCSToR_lengths {
  static constexpr const char* title = "Inverse real DFT from CCS";
  static constexpr const char* lengths = "2..64";
  template <bool kIsThere>
  static consteval void check_length() noexcept {
    static_assert(kIsThere,
                  "haldgen: no transform of this length. "
                  "Inverse real DFT from CCS: 2..64 points");
  }
  static constexpr std::size_t first = 2;
  static constexpr std::size_t size_of(std::size_t n) noexcept {
    return n;
  }
  static constexpr bool has(std::size_t n) noexcept {
    const std::size_t size = size_of(n);
    return (size >= 2 && size <= 64);
  }
  static constexpr std::size_t src_size(std::size_t n) noexcept {
    return n / 2 + 1;
  }
  static constexpr std::size_t dst_size(std::size_t n) noexcept {
    return n;
  }
};

template <class T>
struct DFTInv_CCSToR;

template <>
struct DFTInv_CCSToR<float> : DFTInv_CCSToR_lengths {
  using Src = std::complex<float>;
  using Dst = float;
  using Function = int32_t (*)(const float* src, float* dst, int32_t flag);
  static constexpr Function functions[] = {
      &haldgDFTInv_CCSToR_2_32f,
      &haldgDFTInv_CCSToR_3_32f,
      &haldgDFTInv_CCSToR_4_32f,
      &haldgDFTInv_CCSToR_5_32f,
      &haldgDFTInv_CCSToR_6_32f,
      &haldgDFTInv_CCSToR_7_32f,
      &haldgDFTInv_CCSToR_8_32f,
      &haldgDFTInv_CCSToR_9_32f,
      &haldgDFTInv_CCSToR_10_32f,
      &haldgDFTInv_CCSToR_11_32f,
      &haldgDFTInv_CCSToR_12_32f,
      &haldgDFTInv_CCSToR_13_32f,
      &haldgDFTInv_CCSToR_14_32f,
      &haldgDFTInv_CCSToR_15_32f,
      &haldgDFTInv_CCSToR_16_32f,
      &haldgDFTInv_CCSToR_17_32f,
      &haldgDFTInv_CCSToR_18_32f,
      &haldgDFTInv_CCSToR_19_32f,
      &haldgDFTInv_CCSToR_20_32f,
      &haldgDFTInv_CCSToR_21_32f,
      &haldgDFTInv_CCSToR_22_32f,
      &haldgDFTInv_CCSToR_23_32f,
      &haldgDFTInv_CCSToR_24_32f,
      &haldgDFTInv_CCSToR_25_32f,
      &haldgDFTInv_CCSToR_26_32f,
      &haldgDFTInv_CCSToR_27_32f,
      &haldgDFTInv_CCSToR_28_32f,
      &haldgDFTInv_CCSToR_29_32f,
      &haldgDFTInv_CCSToR_30_32f,
      &haldgDFTInv_CCSToR_31_32f,
      &haldgDFTInv_CCSToR_32_32f,
      &haldgDFTInv_CCSToR_33_32f,
      &haldgDFTInv_CCSToR_34_32f,
      &haldgDFTInv_CCSToR_35_32f,
      &haldgDFTInv_CCSToR_36_32f,
      &haldgDFTInv_CCSToR_37_32f,
      &haldgDFTInv_CCSToR_38_32f,
      &haldgDFTInv_CCSToR_39_32f,
      &haldgDFTInv_CCSToR_40_32f,
      &haldgDFTInv_CCSToR_41_32f,
      &haldgDFTInv_CCSToR_42_32f,
      &haldgDFTInv_CCSToR_43_32f,
      &haldgDFTInv_CCSToR_44_32f,
      &haldgDFTInv_CCSToR_45_32f,
      &haldgDFTInv_CCSToR_46_32f,
      &haldgDFTInv_CCSToR_47_32f,
      &haldgDFTInv_CCSToR_48_32f,
      &haldgDFTInv_CCSToR_49_32f,
      &haldgDFTInv_CCSToR_50_32f,
      &haldgDFTInv_CCSToR_51_32f,
      &haldgDFTInv_CCSToR_52_32f,
      &haldgDFTInv_CCSToR_53_32f,
      &haldgDFTInv_CCSToR_54_32f,
      &haldgDFTInv_CCSToR_55_32f,
      &haldgDFTInv_CCSToR_56_32f,
      &haldgDFTInv_CCSToR_57_32f,
      &haldgDFTInv_CCSToR_58_32f,
      &haldgDFTInv_CCSToR_59_32f,
      &haldgDFTInv_CCSToR_60_32f,
      &haldgDFTInv_CCSToR_61_32f,
      &haldgDFTInv_CCSToR_62_32f,
      &haldgDFTInv_CCSToR_63_32f,
      &haldgDFTInv_CCSToR_64_32f,
  };
};

template <>
struct DFTInv_CCSToR<double> : DFTInv_CCSToR_lengths {
  using Src = std::complex<double>;
  using Dst = double;
  using Function = int32_t (*)(const double* src, double* dst, int32_t flag);
  static constexpr Function functions[] = {
      &haldgDFTInv_CCSToR_2_64f,
      &haldgDFTInv_CCSToR_3_64f,
      &haldgDFTInv_CCSToR_4_64f,
      &haldgDFTInv_CCSToR_5_64f,
      &haldgDFTInv_CCSToR_6_64f,
      &haldgDFTInv_CCSToR_7_64f,
      &haldgDFTInv_CCSToR_8_64f,
      &haldgDFTInv_CCSToR_9_64f,
      &haldgDFTInv_CCSToR_10_64f,
      &haldgDFTInv_CCSToR_11_64f,
      &haldgDFTInv_CCSToR_12_64f,
      &haldgDFTInv_CCSToR_13_64f,
      &haldgDFTInv_CCSToR_14_64f,
      &haldgDFTInv_CCSToR_15_64f,
      &haldgDFTInv_CCSToR_16_64f,
      &haldgDFTInv_CCSToR_17_64f,
      &haldgDFTInv_CCSToR_18_64f,
      &haldgDFTInv_CCSToR_19_64f,
      &haldgDFTInv_CCSToR_20_64f,
      &haldgDFTInv_CCSToR_21_64f,
      &haldgDFTInv_CCSToR_22_64f,
      &haldgDFTInv_CCSToR_23_64f,
      &haldgDFTInv_CCSToR_24_64f,
      &haldgDFTInv_CCSToR_25_64f,
      &haldgDFTInv_CCSToR_26_64f,
      &haldgDFTInv_CCSToR_27_64f,
      &haldgDFTInv_CCSToR_28_64f,
      &haldgDFTInv_CCSToR_29_64f,
      &haldgDFTInv_CCSToR_30_64f,
      &haldgDFTInv_CCSToR_31_64f,
      &haldgDFTInv_CCSToR_32_64f,
      &haldgDFTInv_CCSToR_33_64f,
      &haldgDFTInv_CCSToR_34_64f,
      &haldgDFTInv_CCSToR_35_64f,
      &haldgDFTInv_CCSToR_36_64f,
      &haldgDFTInv_CCSToR_37_64f,
      &haldgDFTInv_CCSToR_38_64f,
      &haldgDFTInv_CCSToR_39_64f,
      &haldgDFTInv_CCSToR_40_64f,
      &haldgDFTInv_CCSToR_41_64f,
      &haldgDFTInv_CCSToR_42_64f,
      &haldgDFTInv_CCSToR_43_64f,
      &haldgDFTInv_CCSToR_44_64f,
      &haldgDFTInv_CCSToR_45_64f,
      &haldgDFTInv_CCSToR_46_64f,
      &haldgDFTInv_CCSToR_47_64f,
      &haldgDFTInv_CCSToR_48_64f,
      &haldgDFTInv_CCSToR_49_64f,
      &haldgDFTInv_CCSToR_50_64f,
      &haldgDFTInv_CCSToR_51_64f,
      &haldgDFTInv_CCSToR_52_64f,
      &haldgDFTInv_CCSToR_53_64f,
      &haldgDFTInv_CCSToR_54_64f,
      &haldgDFTInv_CCSToR_55_64f,
      &haldgDFTInv_CCSToR_56_64f,
      &haldgDFTInv_CCSToR_57_64f,
      &haldgDFTInv_CCSToR_58_64f,
      &haldgDFTInv_CCSToR_59_64f,
      &haldgDFTInv_CCSToR_60_64f,
      &haldgDFTInv_CCSToR_61_64f,
      &haldgDFTInv_CCSToR_62_64f,
      &haldgDFTInv_CCSToR_63_64f,
      &haldgDFTInv_CCSToR_64_64f,
  };
};

struct DFTInv_PackToR_lengths {
  static constexpr const char* title = "Inverse real DFT from Pack";
  static constexpr const char* lengths = "2..64";
  template <bool kIsThere>
  static consteval void check_length() noexcept {
    static_assert(kIsThere,
                  "haldgen: no transform of this length. "
                  "Inverse real DFT from Pack: 2..64 points");
  }
  static constexpr std::size_t first = 2;
  static constexpr std::size_t size_of(std::size_t n) noexcept {
    return n;
  }
  static constexpr bool has(std::size_t n) noexcept {
    const std::size_t size = size_of(n);
    return (size >= 2 && size <= 64);
  }
  static constexpr std::size_t src_size(std::size_t n) noexcept {
    return n;
  }
  static constexpr std::size_t dst_size(std::size_t n) noexcept {
    return n;
  }
};

template <class T>
struct DFTInv_PackToR;

template <>
struct DFTInv_PackToR<float> : DFTInv_PackToR_lengths {
  using Src = float;
  using Dst = float;
  using Function = int32_t (*)(const float* src, float* dst, int32_t flag);
  static constexpr Function functions[] = {
      &haldgDFTInv_PackToR_2_32f,
      &haldgDFTInv_PackToR_3_32f,
      &haldgDFTInv_PackToR_4_32f,
      &haldgDFTInv_PackToR_5_32f,
      &haldgDFTInv_PackToR_6_32f,
      &haldgDFTInv_PackToR_7_32f,
      &haldgDFTInv_PackToR_8_32f,
      &haldgDFTInv_PackToR_9_32f,
      &haldgDFTInv_PackToR_10_32f,
      &haldgDFTInv_PackToR_11_32f,
      &haldgDFTInv_PackToR_12_32f,
      &haldgDFTInv_PackToR_13_32f,
      &haldgDFTInv_PackToR_14_32f,
      &haldgDFTInv_PackToR_15_32f,
      &haldgDFTInv_PackToR_16_32f,
      &haldgDFTInv_PackToR_17_32f,
      &haldgDFTInv_PackToR_18_32f,
      &haldgDFTInv_PackToR_19_32f,
      &haldgDFTInv_PackToR_20_32f,
      &haldgDFTInv_PackToR_21_32f,
      &haldgDFTInv_PackToR_22_32f,
      &haldgDFTInv_PackToR_23_32f,
      &haldgDFTInv_PackToR_24_32f,
      &haldgDFTInv_PackToR_25_32f,
      &haldgDFTInv_PackToR_26_32f,
      &haldgDFTInv_PackToR_27_32f,
      &haldgDFTInv_PackToR_28_32f,
      &haldgDFTInv_PackToR_29_32f,
      &haldgDFTInv_PackToR_30_32f,
      &haldgDFTInv_PackToR_31_32f,
      &haldgDFTInv_PackToR_32_32f,
      &haldgDFTInv_PackToR_33_32f,
      &haldgDFTInv_PackToR_34_32f,
      &haldgDFTInv_PackToR_35_32f,
      &haldgDFTInv_PackToR_36_32f,
      &haldgDFTInv_PackToR_37_32f,
      &haldgDFTInv_PackToR_38_32f,
      &haldgDFTInv_PackToR_39_32f,
      &haldgDFTInv_PackToR_40_32f,
      &haldgDFTInv_PackToR_41_32f,
      &haldgDFTInv_PackToR_42_32f,
      &haldgDFTInv_PackToR_43_32f,
      &haldgDFTInv_PackToR_44_32f,
      &haldgDFTInv_PackToR_45_32f,
      &haldgDFTInv_PackToR_46_32f,
      &haldgDFTInv_PackToR_47_32f,
      &haldgDFTInv_PackToR_48_32f,
      &haldgDFTInv_PackToR_49_32f,
      &haldgDFTInv_PackToR_50_32f,
      &haldgDFTInv_PackToR_51_32f,
      &haldgDFTInv_PackToR_52_32f,
      &haldgDFTInv_PackToR_53_32f,
      &haldgDFTInv_PackToR_54_32f,
      &haldgDFTInv_PackToR_55_32f,
      &haldgDFTInv_PackToR_56_32f,
      &haldgDFTInv_PackToR_57_32f,
      &haldgDFTInv_PackToR_58_32f,
      &haldgDFTInv_PackToR_59_32f,
      &haldgDFTInv_PackToR_60_32f,
      &haldgDFTInv_PackToR_61_32f,
      &haldgDFTInv_PackToR_62_32f,
      &haldgDFTInv_PackToR_63_32f,
      &haldgDFTInv_PackToR_64_32f,
  };
};

template <>
struct DFTInv_PackToR<double> : DFTInv_PackToR_lengths {
  using Src = double;
  using Dst = double;
  using Function = int32_t (*)(const double* src, double* dst, int32_t flag);
  static constexpr Function functions[] = {
      &haldgDFTInv_PackToR_2_64f,
      &haldgDFTInv_PackToR_3_64f,
      &haldgDFTInv_PackToR_4_64f,
      &haldgDFTInv_PackToR_5_64f,
      &haldgDFTInv_PackToR_6_64f,
      &haldgDFTInv_PackToR_7_64f,
      &haldgDFTInv_PackToR_8_64f,
      &haldgDFTInv_PackToR_9_64f,
      &haldgDFTInv_PackToR_10_64f,
      &haldgDFTInv_PackToR_11_64f,
      &haldgDFTInv_PackToR_12_64f,
      &haldgDFTInv_PackToR_13_64f,
      &haldgDFTInv_PackToR_14_64f,
      &haldgDFTInv_PackToR_15_64f,
      &haldgDFTInv_PackToR_16_64f,
      &haldgDFTInv_PackToR_17_64f,
      &haldgDFTInv_PackToR_18_64f,
      &haldgDFTInv_PackToR_19_64f,
      &haldgDFTInv_PackToR_20_64f,
      &haldgDFTInv_PackToR_21_64f,
      &haldgDFTInv_PackToR_22_64f,
      &haldgDFTInv_PackToR_23_64f,
      &haldgDFTInv_PackToR_24_64f,
      &haldgDFTInv_PackToR_25_64f,
      &haldgDFTInv_PackToR_26_64f,
      &haldgDFTInv_PackToR_27_64f,
      &haldgDFTInv_PackToR_28_64f,
      &haldgDFTInv_PackToR_29_64f,
      &haldgDFTInv_PackToR_30_64f,
      &haldgDFTInv_PackToR_31_64f,
      &haldgDFTInv_PackToR_32_64f,
      &haldgDFTInv_PackToR_33_64f,
      &haldgDFTInv_PackToR_34_64f,
      &haldgDFTInv_PackToR_35_64f,
      &haldgDFTInv_PackToR_36_64f,
      &haldgDFTInv_PackToR_37_64f,
      &haldgDFTInv_PackToR_38_64f,
      &haldgDFTInv_PackToR_39_64f,
      &haldgDFTInv_PackToR_40_64f,
      &haldgDFTInv_PackToR_41_64f,
      &haldgDFTInv_PackToR_42_64f,
      &haldgDFTInv_PackToR_43_64f,
      &haldgDFTInv_PackToR_44_64f,
      &haldgDFTInv_PackToR_45_64f,
      &haldgDFTInv_PackToR_46_64f,
      &haldgDFTInv_PackToR_47_64f,
      &haldgDFTInv_PackToR_48_64f,
      &haldgDFTInv_PackToR_49_64f,
      &haldgDFTInv_PackToR_50_64f,
      &haldgDFTInv_PackToR_51_64f,
      &haldgDFTInv_PackToR_52_64f,
      &haldgDFTInv_PackToR_53_64f,
      &haldgDFTInv_PackToR_54_64f,
      &haldgDFTInv_PackToR_55_64f,
      &haldgDFTInv_PackToR_56_64f,
      &haldgDFTInv_PackToR_57_64f,
      &haldgDFTInv_PackToR_58_64f,
      &haldgDFTInv_PackToR_59_64f,
      &haldgDFTInv_PackToR_60_64f,
      &haldgDFTInv_PackToR_61_64f,
      &haldgDFTInv_PackToR_62_64f,
      &haldgDFTInv_PackToR_63_64f,
      &haldgDFTInv_PackToR_64_64f,
  };
};

struct DFTInv_PermToR_lengths {
  static constexpr const char* title = "Inverse real DFT from Perm";
  static constexpr const char* lengths = "2..64";
  template <bool kIsThere>
  static consteval void check_length() noexcept {
    static_assert(kIsThere,
                  "haldgen: no transform of this length. "
                  "Inverse real DFT from Perm: 2..64 points");
  }
  static constexpr std::size_t first = 2;
  static constexpr std::size_t size_of(std::size_t n) noexcept {
    return n;
  }
  static constexpr bool has(std::size_t n) noexcept {
    const std::size_t size = size_of(n);
    return (size >= 2 && size <= 64);
  }
  static constexpr std::size_t src_size(std::size_t n) noexcept {
    return n;
  }
  static constexpr std::size_t dst_size(std::size_t n) noexcept {
    return n;
  }
};

template <class T>
struct DFTInv_PermToR;

template <>
struct DFTInv_PermToR<float> : DFTInv_PermToR_lengths {
  using Src = float;
  using Dst = float;
  using Function = int32_t (*)(const float* src, float* dst, int32_t flag);
  static constexpr Function functions[] = {
      &haldgDFTInv_PermToR_2_32f,
      &haldgDFTInv_PermToR_3_32f,
      &haldgDFTInv_PermToR_4_32f,
      &haldgDFTInv_PermToR_5_32f,
      &haldgDFTInv_PermToR_6_32f,
      &haldgDFTInv_PermToR_7_32f,
      &haldgDFTInv_PermToR_8_32f,
      &haldgDFTInv_PermToR_9_32f,
      &haldgDFTInv_PermToR_10_32f,
      &haldgDFTInv_PermToR_11_32f,
      &haldgDFTInv_PermToR_12_32f,
      &haldgDFTInv_PermToR_13_32f,
      &haldgDFTInv_PermToR_14_32f,
      &haldgDFTInv_PermToR_15_32f,
      &haldgDFTInv_PermToR_16_32f,
      &haldgDFTInv_PermToR_17_32f,
      &haldgDFTInv_PermToR_18_32f,
      &haldgDFTInv_PermToR_19_32f,
      &haldgDFTInv_PermToR_20_32f,
      &haldgDFTInv_PermToR_21_32f,
      &haldgDFTInv_PermToR_22_32f,
      &haldgDFTInv_PermToR_23_32f,
      &haldgDFTInv_PermToR_24_32f,
      &haldgDFTInv_PermToR_25_32f,
      &haldgDFTInv_PermToR_26_32f,
      &haldgDFTInv_PermToR_27_32f,
      &haldgDFTInv_PermToR_28_32f,
      &haldgDFTInv_PermToR_29_32f,
      &haldgDFTInv_PermToR_30_32f,
      &haldgDFTInv_PermToR_31_32f,
      &haldgDFTInv_PermToR_32_32f,
      &haldgDFTInv_PermToR_33_32f,
      &haldgDFTInv_PermToR_34_32f,
      &haldgDFTInv_PermToR_35_32f,
      &haldgDFTInv_PermToR_36_32f,
      &haldgDFTInv_PermToR_37_32f,
      &haldgDFTInv_PermToR_38_32f,
      &haldgDFTInv_PermToR_39_32f,
      &haldgDFTInv_PermToR_40_32f,
      &haldgDFTInv_PermToR_41_32f,
      &haldgDFTInv_PermToR_42_32f,
      &haldgDFTInv_PermToR_43_32f,
      &haldgDFTInv_PermToR_44_32f,
      &haldgDFTInv_PermToR_45_32f,
      &haldgDFTInv_PermToR_46_32f,
      &haldgDFTInv_PermToR_47_32f,
      &haldgDFTInv_PermToR_48_32f,
      &haldgDFTInv_PermToR_49_32f,
      &haldgDFTInv_PermToR_50_32f,
      &haldgDFTInv_PermToR_51_32f,
      &haldgDFTInv_PermToR_52_32f,
      &haldgDFTInv_PermToR_53_32f,
      &haldgDFTInv_PermToR_54_32f,
      &haldgDFTInv_PermToR_55_32f,
      &haldgDFTInv_PermToR_56_32f,
      &haldgDFTInv_PermToR_57_32f,
      &haldgDFTInv_PermToR_58_32f,
      &haldgDFTInv_PermToR_59_32f,
      &haldgDFTInv_PermToR_60_32f,
      &haldgDFTInv_PermToR_61_32f,
      &haldgDFTInv_PermToR_62_32f,
      &haldgDFTInv_PermToR_63_32f,
      &haldgDFTInv_PermToR_64_32f,
  };
};

template <>
struct DFTInv_PermToR<double> : DFTInv_PermToR_lengths {
  using Src = double;
  using Dst = double;
  using Function = int32_t (*)(const double* src, double* dst, int32_t flag);
  static constexpr Function functions[] = {
      &haldgDFTInv_PermToR_2_64f,
      &haldgDFTInv_PermToR_3_64f,
      &haldgDFTInv_PermToR_4_64f,
      &haldgDFTInv_PermToR_5_64f,
      &haldgDFTInv_PermToR_6_64f,
      &haldgDFTInv_PermToR_7_64f,
      &haldgDFTInv_PermToR_8_64f,
      &haldgDFTInv_PermToR_9_64f,
      &haldgDFTInv_PermToR_10_64f,
      &haldgDFTInv_PermToR_11_64f,
      &haldgDFTInv_PermToR_12_64f,
      &haldgDFTInv_PermToR_13_64f,
      &haldgDFTInv_PermToR_14_64f,
      &haldgDFTInv_PermToR_15_64f,
      &haldgDFTInv_PermToR_16_64f,
      &haldgDFTInv_PermToR_17_64f,
      &haldgDFTInv_PermToR_18_64f,
      &haldgDFTInv_PermToR_19_64f,
      &haldgDFTInv_PermToR_20_64f,
      &haldgDFTInv_PermToR_21_64f,
      &haldgDFTInv_PermToR_22_64f,
      &haldgDFTInv_PermToR_23_64f,
      &haldgDFTInv_PermToR_24_64f,
      &haldgDFTInv_PermToR_25_64f,
      &haldgDFTInv_PermToR_26_64f,
      &haldgDFTInv_PermToR_27_64f,
      &haldgDFTInv_PermToR_28_64f,
      &haldgDFTInv_PermToR_29_64f,
      &haldgDFTInv_PermToR_30_64f,
      &haldgDFTInv_PermToR_31_64f,
      &haldgDFTInv_PermToR_32_64f,
      &haldgDFTInv_PermToR_33_64f,
      &haldgDFTInv_PermToR_34_64f,
      &haldgDFTInv_PermToR_35_64f,
      &haldgDFTInv_PermToR_36_64f,
      &haldgDFTInv_PermToR_37_64f,
      &haldgDFTInv_PermToR_38_64f,
      &haldgDFTInv_PermToR_39_64f,
      &haldgDFTInv_PermToR_40_64f,
      &haldgDFTInv_PermToR_41_64f,
      &haldgDFTInv_PermToR_42_64f,
      &haldgDFTInv_PermToR_43_64f,
      &haldgDFTInv_PermToR_44_64f,
      &haldgDFTInv_PermToR_45_64f,
      &haldgDFTInv_PermToR_46_64f,
      &haldgDFTInv_PermToR_47_64f,
      &haldgDFTInv_PermToR_48_64f,
      &haldgDFTInv_PermToR_49_64f,
      &haldgDFTInv_PermToR_50_64f,
      &haldgDFTInv_PermToR_51_64f,
      &haldgDFTInv_PermToR_52_64f,
      &haldgDFTInv_PermToR_53_64f,
      &haldgDFTInv_PermToR_54_64f,
      &haldgDFTInv_PermToR_55_64f,
      &haldgDFTInv_PermToR_56_64f,
      &haldgDFTInv_PermToR_57_64f,
      &haldgDFTInv_PermToR_58_64f,
      &haldgDFTInv_PermToR_59_64f,
      &haldgDFTInv_PermToR_60_64f,
      &haldgDFTInv_PermToR_61_64f,
      &haldgDFTInv_PermToR_62_64f,
      &haldgDFTInv_PermToR_63_64f,
      &haldgDFTInv_PermToR_64_64f,
  };
};

struct Hartley_lengths {
  static constexpr const char* title = "Hartley transform";
  static constexpr const char* lengths = "2..64";
  template <bool kIsThere>
  static consteval void check_length() noexcept {
    static_assert(kIsThere,
                  "haldgen: no transform of this length. "
                  "Hartley transform: 2..64 points");
  }
  static constexpr std::size_t first = 2;
  static constexpr std::size_t size_of(std::size_t n) noexcept {
    return n;
  }
  static constexpr bool has(std::size_t n) noexcept {
    const std::size_t size = size_of(n);
    return (size >= 2 && size <= 64);
  }
  static constexpr std::size_t src_size(std::size_t n) noexcept {
    return n;
  }
  static constexpr std::size_t dst_size(std::size_t n) noexcept {
    return n;
  }
};

template <class T>
struct Hartley;

template <>
struct Hartley<float> : Hartley_lengths {
  using Src = float;
  using Dst = float;
  using Function = int32_t (*)(const float* src, float* dst, int32_t flag);
  static constexpr Function functions[] = {
      &haldgHartley_2_32f,
      &haldgHartley_3_32f,
      &haldgHartley_4_32f,
      &haldgHartley_5_32f,
      &haldgHartley_6_32f,
      &haldgHartley_7_32f,
      &haldgHartley_8_32f,
      &haldgHartley_9_32f,
      &haldgHartley_10_32f,
      &haldgHartley_11_32f,
      &haldgHartley_12_32f,
      &haldgHartley_13_32f,
      &haldgHartley_14_32f,
      &haldgHartley_15_32f,
      &haldgHartley_16_32f,
      &haldgHartley_17_32f,
      &haldgHartley_18_32f,
      &haldgHartley_19_32f,
      &haldgHartley_20_32f,
      &haldgHartley_21_32f,
      &haldgHartley_22_32f,
      &haldgHartley_23_32f,
      &haldgHartley_24_32f,
      &haldgHartley_25_32f,
      &haldgHartley_26_32f,
      &haldgHartley_27_32f,
      &haldgHartley_28_32f,
      &haldgHartley_29_32f,
      &haldgHartley_30_32f,
      &haldgHartley_31_32f,
      &haldgHartley_32_32f,
      &haldgHartley_33_32f,
      &haldgHartley_34_32f,
      &haldgHartley_35_32f,
      &haldgHartley_36_32f,
      &haldgHartley_37_32f,
      &haldgHartley_38_32f,
      &haldgHartley_39_32f,
      &haldgHartley_40_32f,
      &haldgHartley_41_32f,
      &haldgHartley_42_32f,
      &haldgHartley_43_32f,
      &haldgHartley_44_32f,
      &haldgHartley_45_32f,
      &haldgHartley_46_32f,
      &haldgHartley_47_32f,
      &haldgHartley_48_32f,
      &haldgHartley_49_32f,
      &haldgHartley_50_32f,
      &haldgHartley_51_32f,
      &haldgHartley_52_32f,
      &haldgHartley_53_32f,
      &haldgHartley_54_32f,
      &haldgHartley_55_32f,
      &haldgHartley_56_32f,
      &haldgHartley_57_32f,
      &haldgHartley_58_32f,
      &haldgHartley_59_32f,
      &haldgHartley_60_32f,
      &haldgHartley_61_32f,
      &haldgHartley_62_32f,
      &haldgHartley_63_32f,
      &haldgHartley_64_32f,
  };
};

template <>
struct Hartley<double> : Hartley_lengths {
  using Src = double;
  using Dst = double;
  using Function = int32_t (*)(const double* src, double* dst, int32_t flag);
  static constexpr Function functions[] = {
      &haldgHartley_2_64f,
      &haldgHartley_3_64f,
      &haldgHartley_4_64f,
      &haldgHartley_5_64f,
      &haldgHartley_6_64f,
      &haldgHartley_7_64f,
      &haldgHartley_8_64f,
      &haldgHartley_9_64f,
      &haldgHartley_10_64f,
      &haldgHartley_11_64f,
      &haldgHartley_12_64f,
      &haldgHartley_13_64f,
      &haldgHartley_14_64f,
      &haldgHartley_15_64f,
      &haldgHartley_16_64f,
      &haldgHartley_17_64f,
      &haldgHartley_18_64f,
      &haldgHartley_19_64f,
      &haldgHartley_20_64f,
      &haldgHartley_21_64f,
      &haldgHartley_22_64f,
      &haldgHartley_23_64f,
      &haldgHartley_24_64f,
      &haldgHartley_25_64f,
      &haldgHartley_26_64f,
      &haldgHartley_27_64f,
      &haldgHartley_28_64f,
      &haldgHartley_29_64f,
      &haldgHartley_30_64f,
      &haldgHartley_31_64f,
      &haldgHartley_32_64f,
      &haldgHartley_33_64f,
      &haldgHartley_34_64f,
      &haldgHartley_35_64f,
      &haldgHartley_36_64f,
      &haldgHartley_37_64f,
      &haldgHartley_38_64f,
      &haldgHartley_39_64f,
      &haldgHartley_40_64f,
      &haldgHartley_41_64f,
      &haldgHartley_42_64f,
      &haldgHartley_43_64f,
      &haldgHartley_44_64f,
      &haldgHartley_45_64f,
      &haldgHartley_46_64f,
      &haldgHartley_47_64f,
      &haldgHartley_48_64f,
      &haldgHartley_49_64f,
      &haldgHartley_50_64f,
      &haldgHartley_51_64f,
      &haldgHartley_52_64f,
      &haldgHartley_53_64f,
      &haldgHartley_54_64f,
      &haldgHartley_55_64f,
      &haldgHartley_56_64f,
      &haldgHartley_57_64f,
      &haldgHartley_58_64f,
      &haldgHartley_59_64f,
      &haldgHartley_60_64f,
      &haldgHartley_61_64f,
      &haldgHartley_62_64f,
      &haldgHartley_63_64f,
      &haldgHartley_64_64f,
  };
};

struct WHT_lengths {
  static constexpr const char* title = "Walsh-Hadamard transform";
  static constexpr const char* lengths = "2 to the power of 1..13";
  template <bool kIsThere>
  static consteval void check_length() noexcept {
    static_assert(kIsThere,
                  "haldgen: no transform of this length. "
                  "Walsh-Hadamard transform: 2 to the power of 1..13 points");
  }
  static constexpr std::size_t first = 1;
  static constexpr std::size_t size_of(std::size_t n) noexcept {
    return std::has_single_bit(n) ? std::size_t(std::countr_zero(n)) : 0;
  }
  static constexpr bool has(std::size_t n) noexcept {
    const std::size_t size = size_of(n);
    return (size >= 1 && size <= 13);
  }
  static constexpr std::size_t src_size(std::size_t n) noexcept {
    return n;
  }
  static constexpr std::size_t dst_size(std::size_t n) noexcept {
    return n;
  }
};

template <class T>
struct WHT;

template <>
struct WHT<float> : WHT_lengths {
  using Src = float;
  using Dst = float;
  using Function = int32_t (*)(const float* src, float* dst, int32_t flag, uint8_t* buffer);
  static constexpr Function functions[] = {
      &haldgWHT_1_32f,
      &haldgWHT_2_32f,
      &haldgWHT_3_32f,
      &haldgWHT_4_32f,
      &haldgWHT_5_32f,
      &haldgWHT_6_32f,
      &haldgWHT_7_32f,
      &haldgWHT_8_32f,
      &haldgWHT_9_32f,
      &haldgWHT_10_32f,
      &haldgWHT_11_32f,
      &haldgWHT_12_32f,
      &haldgWHT_13_32f,
  };
  static constexpr std::size_t work_bytes[] = {
      0,
      0,
      0,
      0,
      0,
      0,
      0,
      1024,
      2048,
      4096,
      8192,
      18432,
      34816,
  };
};

template <>
struct WHT<double> : WHT_lengths {
  using Src = double;
  using Dst = double;
  using Function = int32_t (*)(const double* src, double* dst, int32_t flag, uint8_t* buffer);
  static constexpr Function functions[] = {
      &haldgWHT_1_64f,
      &haldgWHT_2_64f,
      &haldgWHT_3_64f,
      &haldgWHT_4_64f,
      &haldgWHT_5_64f,
      &haldgWHT_6_64f,
      &haldgWHT_7_64f,
      &haldgWHT_8_64f,
      &haldgWHT_9_64f,
      &haldgWHT_10_64f,
      &haldgWHT_11_64f,
      &haldgWHT_12_64f,
      &haldgWHT_13_64f,
  };
  static constexpr std::size_t work_bytes[] = {
      0,
      0,
      0,
      0,
      0,
      0,
      0,
      2048,
      4096,
      8192,
      18432,
      34816,
      73728,
  };
};

template <class T>
inline constexpr auto WHTGetBufferSize = nullptr;
template <>
inline constexpr auto WHTGetBufferSize<float> = &haldgWHTGetBufferSize_32f;
template <>
inline constexpr auto WHTGetBufferSize<double> = &haldgWHTGetBufferSize_64f;

template <class T>
inline constexpr auto DCT4GetSize = nullptr;
template <>
inline constexpr auto DCT4GetSize<float> = &haldgDCT4GetSize_32f;
template <>
inline constexpr auto DCT4GetSize<double> = &haldgDCT4GetSize_64f;

template <class T>
inline constexpr auto DCT4Init = nullptr;
template <>
inline constexpr auto DCT4Init<float> = &haldgDCT4Init_32f;
template <>
inline constexpr auto DCT4Init<double> = &haldgDCT4Init_64f;

template <class T>
inline constexpr auto DCT4InitAlloc = nullptr;
template <>
inline constexpr auto DCT4InitAlloc<float> = &haldgDCT4InitAlloc_32f;
template <>
inline constexpr auto DCT4InitAlloc<double> = &haldgDCT4InitAlloc_64f;

template <class T>
inline constexpr auto DCT4Free = nullptr;
template <>
inline constexpr auto DCT4Free<float> = &haldgDCT4Free_32f;
template <>
inline constexpr auto DCT4Free<double> = &haldgDCT4Free_64f;

template <class T>
inline constexpr auto DCT4 = nullptr;
template <>
inline constexpr auto DCT4<float> = &haldgDCT4_32f;
template <>
inline constexpr auto DCT4<double> = &haldgDCT4_64f;

}  // namespace haldgen::detail

#endif

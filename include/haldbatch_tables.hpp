// The functions of haldbatch.h by their single functions in haldgen_tables.hpp.
// This file is written by haldgen-framegen; do not edit it.
// clang-format off
#ifndef HALDBATCH_TABLES_HPP
#define HALDBATCH_TABLES_HPP

#include <haldbatch.h>
#include <haldgen_tables.hpp>

namespace haldgen::detail {

template <class Transform>
inline constexpr auto batch_function = nullptr;
template <>
inline constexpr auto batch_function<DFTFwd_CToC<float>> = &haldbDFTFwd_CToC_32fc;
template <>
inline constexpr auto batch_function<DFTFwd_CToC<double>> = &haldbDFTFwd_CToC_64fc;
template <>
inline constexpr auto batch_function<DFTInv_CToC<float>> = &haldbDFTInv_CToC_32fc;
template <>
inline constexpr auto batch_function<DFTInv_CToC<double>> = &haldbDFTInv_CToC_64fc;
template <>
inline constexpr auto batch_function<DFTFwd_RToCCS<float>> = &haldbDFTFwd_RToCCS_32f;
template <>
inline constexpr auto batch_function<DFTFwd_RToCCS<double>> = &haldbDFTFwd_RToCCS_64f;
template <>
inline constexpr auto batch_function<DFTFwd_RToPack<float>> = &haldbDFTFwd_RToPack_32f;
template <>
inline constexpr auto batch_function<DFTFwd_RToPack<double>> = &haldbDFTFwd_RToPack_64f;
template <>
inline constexpr auto batch_function<DFTFwd_RToPerm<float>> = &haldbDFTFwd_RToPerm_32f;
template <>
inline constexpr auto batch_function<DFTFwd_RToPerm<double>> = &haldbDFTFwd_RToPerm_64f;
template <>
inline constexpr auto batch_function<DFTInv_CCSToR<float>> = &haldbDFTInv_CCSToR_32f;
template <>
inline constexpr auto batch_function<DFTInv_CCSToR<double>> = &haldbDFTInv_CCSToR_64f;
template <>
inline constexpr auto batch_function<DFTInv_PackToR<float>> = &haldbDFTInv_PackToR_32f;
template <>
inline constexpr auto batch_function<DFTInv_PackToR<double>> = &haldbDFTInv_PackToR_64f;
template <>
inline constexpr auto batch_function<DFTInv_PermToR<float>> = &haldbDFTInv_PermToR_32f;
template <>
inline constexpr auto batch_function<DFTInv_PermToR<double>> = &haldbDFTInv_PermToR_64f;
template <>
inline constexpr auto batch_function<Hartley<float>> = &haldbHartley_32f;
template <>
inline constexpr auto batch_function<Hartley<double>> = &haldbHartley_64f;
template <>
inline constexpr auto batch_function<WHT<float>> = &haldbWHT_32f;
template <>
inline constexpr auto batch_function<WHT<double>> = &haldbWHT_64f;

}  // namespace haldgen::detail

#endif

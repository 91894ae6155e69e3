// What the public headers have in common.
#pragma once

#include <initializer_list>
#include <iosfwd>
#include <string>
#include <string_view>

#include "names/names.h"

namespace haldgen::frame {

/// The parameter of functions that take a scaling flag; else nothing.
std::string scaling_text(names::Scaling scaling);

/// What an array consists of where the bins of CCS format are complex numbers.
names::Element element_of(names::Layout layout, names::Element element);

/// The title of a word without what tells its fixed from its general functions.
std::string transform_title(const names::Word& word);

/// A line on one function.
std::string summary(const std::string& title, names::Element element, names::Scaling scaling);

/// Prints a function that throws nothing, its summary above it.
void emit_prototype(std::ostream& out, const std::string& summary, const std::string& declaration);

/// Prints the parts of a comment that are not empty.
void emit_comment(std::ostream& out, std::initializer_list<std::string_view> parts);

}  // namespace haldgen::frame

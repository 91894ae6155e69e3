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

/// Prints the parts of a comment that are not empty.
void emit_comment(std::ostream& out, std::initializer_list<std::string_view> parts);

}  // namespace haldgen::frame

// Source files of generated kernels: one printer for all families.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "family/tuning.h"
#include "kernelgen/emit.h"
#include "kernelgen/program.h"
#include "names/names.h"

namespace haldgen::family {

using kernelgen::FloatType;

/// A struct with one function, printed as it stands.
struct Kernel {
  std::string name;
  std::string remark;    ///< a comment of one line
  std::string members;   ///< lines before the function
  std::string function;  ///< its head
  std::string body;      ///< its statements
};

struct Source {
  std::string title;                ///< "Complex DFT of length 13"
  FloatType type = FloatType::f32;  ///< of the elements
  std::string algorithm;            ///< how the graph comes about
  std::string operations;           ///< its counts
  std::string command;              ///< arguments of haldgen-generate: "complex 13 32fc"
  std::vector<std::string> includes;
  std::string scope;  ///< namespace in haldgen
  std::vector<Kernel> kernels;
  std::vector<std::string> functions;  ///< definitions of what the library links
};

std::string print(const Source& source);

/// Element types of arrays with parts of this type.
names::Element real_element(FloatType type);
names::Element complex_element(FloatType type);

/// How a program under the common contract (contract.h) is printed.
struct Transform {
  std::string name;  ///< of its struct
  int length = 0;
  kernelgen::Divides divides = kernelgen::Divides::both;
  names::Element element = names::Element::none;
  std::string memory = "Access";  ///< what the function calls its template parameter
  kernelgen::Subscripts subscripts = {};
  std::string epilogue = {};  ///< statements behind the program
  /// The length of a convolution inside, where it does not follow from the transform's.
  std::optional<int> convolution = {};
};

/// The transforms of one length and type, as data. The library's source and the file of a kernel
/// to go are printed from it.
struct Transforms {
  struct Body {
    Transform transform;
    kernelgen::Program program;  ///< scheduled
    Choice choice;
  };
  struct Function {
    std::string word;         ///< of its name
    std::size_t body;         ///< that it runs
    std::string memory;       ///< the body's template argument in the library, if it has one
    std::vector<int> places;  ///< positions in the array of the values that the body numbers
  };
  int length = 0;
  FloatType type = FloatType::f32;
  names::Element element = names::Element::none;
  std::string title;  ///< as in Source, and so on
  std::string algorithm;
  std::string operations;
  std::string command;
  std::string scope;
  std::vector<std::string> includes;
  std::vector<Body> bodies;
  std::vector<Function> functions;
};

/// The source for the library.
Source source_of(const Transforms& transforms);

/// The constants of a body that have names.
std::vector<kernelgen::NamedConstant> constants_of(const Transforms::Body& body);

/// A scalar program as it is tuned: in pairs of lanes or not, in an order.
kernelgen::Program tuned(const kernelgen::Program& scalar, const Choice& choice,
                         const kernelgen::Overlap& overlap = std::equal_to<>());

/// The remark on a kernel's tuning.
std::string ordered_by(const Choice& choice, bool has_forms);

}  // namespace haldgen::family

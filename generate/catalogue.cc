#include "generate/catalogue.h"

#include <map>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "generate/kernels.h"
#include "kernelgen/emit.h"
#include "registry/registry.h"

namespace haldgen::generate {
namespace {

using family::Family;
using family::FloatType;
using kernelgen::Graph;
using kernelgen::Statement;
using kernelgen::Value;

/// Texts of the generator are printable ASCII.
std::string quoted(const std::string& text) {
  std::string result = "\"";
  for (const char c : text) {
    if (c == '"' || c == '\\') result += '\\';
    result += c;
  }
  return result + '"';
}

/// The separator in front of all but the first.
class Comma {
 public:
  const char* operator()() { return std::exchange(text_, ","); }

 private:
  const char* text_ = "";
};

void write_head(std::ostream& out, const Family& family, const std::string& kernel, FloatType type,
                const family::Work& work) {
  out << R"({"family":)" << quoted(family.name) << R"(,"kernel":)" << quoted(kernel)
      << R"(,"type":)" << quoted(suffix(family, type)) << R"(,"additions":)" << work.additions
      << R"(,"multiplications":)" << work.multiplications << R"(,"depth":)" << work.depth
      << R"(,"conversions":)" << work.conversions;
}

void write_graph(std::ostream& out, const Graph& graph) {
  std::map<std::string, std::size_t> stages;
  std::map<int, std::size_t> places;  // of nodes among those that are written
  const std::vector<int> live = live_nodes(graph);
  for (const int index : live) {
    places.emplace(index, places.size());
    if (!graph.node(index).input) stages.emplace(graph.node(index).stage, 0);
  }
  const auto place = [&](int node) {
    return node == kernelgen::kZeroNode ? -1 : static_cast<int>(places.at(node));
  };
  out << R"(,"stages":[)";
  Comma between_stages;
  std::size_t count = 0;
  for (auto& [name, number] : stages) {
    number = count++;
    out << between_stages() << quoted(name);
  }
  out << R"(],"nodes":[)";
  Comma between_nodes;
  for (const int index : live) {
    const Statement& s = graph.node(index);
    out << between_nodes();
    if (s.input) {
      out << *s.input;
      continue;
    }
    out << '[' << stages[s.stage];
    for (const kernelgen::Term& t : s.terms) {
      out << ",[" << place(t.node) << ',' << at(t.turn) << ',';
      if (t.constant == kernelgen::kNoConstant) {
        out << 0;
      } else {
        out << kernelgen::literal(graph.literal(t.constant), FloatType::f64);
      }
      out << ']';
    }
    out << ']';
  }
  out << R"(],"outputs":[)";
  Comma between_outputs;
  for (const Value v : graph.outputs()) {
    out << between_outputs() << '[' << place(v.node) << ',' << at(v.turn) << ']';
  }
  out << ']';
}

}  // namespace

void write_catalogue(std::ostream& out) {
  for (const Family& family : registry::families()) {
    if (!family.generated) continue;
    for (const int number : kernels_of(family)) {
      for (const FloatType type : kTypes) {
        write_head(out, family, kernel_name(family, number), type,
                   family.generated->work(number, type));
        out << R"(,"algorithm":)" << quoted(family.generated->algorithm(number, type));
        write_graph(out, family.generated->graph(number, type));
        out << "}\n";
      }
    }
    if (!family.planned) continue;
    for (const int length : family.planned->lengths) {
      for (const FloatType type : kTypes) {
        write_head(out, family, std::to_string(length), type, family.planned->work(length));
        out << "}\n";
      }
    }
  }
}

}  // namespace haldgen::generate

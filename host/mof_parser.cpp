#include "host/mof_parser.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <set>
#include <string>
#include <utility>

#include "host/cim_type.h"
#include "host/mof_lexer.h"
#include "host/text.h"

namespace tqcim::host {
namespace {

class MofParser {
 public:
  MofParser(const MofSource& source, MofDocument& document)
      : source_(source), lexer_(source), document_(document) {
    Skip();
  }

  void Parse() {
    while (token_.kind != MofToken::Kind::kEnd) Declaration();
  }

 private:
  void Skip() { token_ = lexer_.Next(); }

  [[noreturn]] void Refuse(std::string_view part, const std::string& reason) const {
    throw MofError(source_, part, reason);
  }
  [[noreturn]] void Want(const std::string& wanted) const {
    Refuse(token_.text, wanted + " should stand here, not " + token_.Describe());
  }
  bool TakeIf(char punctuation) {
    if (!token_.Is(punctuation)) return false;
    Skip();
    return true;
  }
  void Expect(char punctuation) {
    if (!TakeIf(punctuation)) Want(std::string("'") + punctuation + "'");
  }
  std::string_view ExpectName(const char* what) {
    if (token_.kind != MofToken::Kind::kIdentifier) Want(what);
    const std::string_view name = token_.text;
    Skip();
    return name;
  }

  void Declaration() {
    if (token_.Is('#')) return Directive();
    const Qualifiers qualifiers = QualifierList();
    if (token_.IsWord("instance")) return InstanceDeclaration();
    if (!token_.IsWord("class")) {
      Want(qualifiers.empty() ? "a class, an instance or a directive" : "a class or an instance");
    }
    Skip();
    ClassDeclaration(qualifiers);
  }

  void Directive() {
    Skip();
    if (!token_.IsWord("pragma")) Want("'pragma'");
    Skip();
    if (token_.IsWord("include")) {
      Refuse(token_.text, "files cannot be included: give them one by one");
    }
    ExpectName("the name of a directive");
    if (!TakeIf('(')) return;
    while (!TakeIf(')')) {
      const bool word = token_.kind == MofToken::Kind::kIdentifier ||
                        token_.kind == MofToken::Kind::kText ||
                        token_.kind == MofToken::Kind::kInteger || token_.Is(',');
      if (!word) Want("an argument of the directive or ')'");
      Skip();
    }
  }

  Qualifiers QualifierList() {
    if (!TakeIf('[')) return {};
    qualifiers_.clear();
    do {
      Qualifier qualifier{ExpectName("the name of a qualifier"), {}};
      if (FindQualifier(qualifiers_, qualifier.name)) {
        Refuse(qualifier.name, "qualifier " + std::string(qualifier.name) + " stands twice");
      }
      if (TakeIf('(')) {
        qualifier.text = SingleValue();
        Expect(')');
      } else if (token_.Is('{')) {
        qualifier.text = ArrayValue();
      }
      if (TakeIf(':')) {
        while (token_.kind == MofToken::Kind::kIdentifier) Skip();
      }
      qualifiers_.push_back(qualifier);
    } while (TakeIf(','));
    Expect(']');
    return document_.qualifier_lists.Keep(qualifiers_);
  }

  void ClassDeclaration(Qualifiers qualifiers) {
    ParsedClass parsed{.source = &source_,
                       .name = ExpectName("the name of a class"),
                       .superclass = {},
                       .qualifiers = qualifiers,
                       .properties = {}};
    if (TakeIf(':')) parsed.superclass = ExpectName("the name of the superclass");
    Expect('{');
    properties_.clear();
    while (!TakeIf('}')) {
      PropertyDefinition property = PropertyDeclaration();
      if (std::any_of(properties_.begin(), properties_.end(),
                      [&](const auto& before) { return EqualNames(before.name, property.name); })) {
        Refuse(property.name, "property " + std::string(property.name) + " stands twice");
      }
      properties_.push_back(std::move(property));
    }
    Expect(';');
    parsed.properties.assign(std::move_iterator(properties_.begin()),
                             std::move_iterator(properties_.end()));
    document_.classes.push_back(std::move(parsed));
  }

  PropertyDefinition PropertyDeclaration() {
    PropertyDefinition property;
    property.qualifiers = QualifierList();
    const std::string_view type_name = ExpectName("the type of a property or '}'");
    if (token_.IsWord("ref")) {
      Skip();
      property.type = CimType::kReference;
      property.reference_class = type_name;
    } else if (const auto type = TypeOfName(type_name)) {
      property.type = *type;
    } else {
      Refuse(type_name, std::string(type_name) + " is not a CIM type");
    }
    property.name = ExpectName("the name of a property");
    if (token_.Is('(')) Refuse(token_.text, "methods are not supported");
    if (TakeIf('[')) {
      property.array = true;
      if (token_.kind == MofToken::Kind::kInteger) Skip();
      Expect(']');
    }
    if (TakeIf('=')) {
      const std::string_view text = AnyValue();
      const auto converted = ConvertToType(ValueOf(text), property.type, property.array);
      if (!converted) {
        Refuse(text, "the value is not of the type of " + std::string(property.name));
      }
      property.default_value = *converted;
    }
    Expect(';');
    return property;
  }

  void InstanceDeclaration() {
    Skip();
    if (!token_.IsWord("of")) Want("'of'");
    Skip();
    ParsedInstance parsed{&source_, ExpectName("the name of a class"), {}, {}};
    if (token_.IsWord("as")) {
      Skip();
      Expect('$');
      parsed.alias = ExpectName("the name of an alias");
      aliases_.insert(parsed.alias);
    }
    Expect('{');
    while (!TakeIf('}')) {
      const std::string_view property = ExpectName("the name of a property or '}'");
      Expect('=');
      parsed.assignments.emplace_back(property, ValueOf(AnyValue()));
      Expect(';');
    }
    Expect(';');
    document_.instances.push_back(std::move(parsed));
  }

  /// Each of these goes past a value and gives its text.
  std::string_view AnyValue() { return token_.Is('{') ? ArrayValue() : SingleValue(); }

  std::string_view ArrayValue() {
    const std::string_view start = token_.text;
    Expect('{');
    if (!token_.Is('}')) {
      do {
        if (token_.IsWord("null")) Refuse(token_.text, "an array holds no null");
        SingleValue();
      } while (TakeIf(','));
    }
    const std::string_view end = token_.text;
    Expect('}');
    return UpTo(start, end);
  }

  std::string_view SingleValue() {
    const std::string_view start = token_.text;
    if (TakeIf('$')) {
      const std::string_view name = ExpectName("the name of an alias");
      if (!aliases_.contains(name)) {
        Refuse(name, "alias $" + std::string(name) + " is not declared");
      }
      return UpTo(start, name);
    }
    const bool literal = token_.kind != MofToken::Kind::kIdentifier &&
                         token_.kind != MofToken::Kind::kPunctuation &&
                         token_.kind != MofToken::Kind::kEnd;
    if (!literal && !token_.IsWord("true") && !token_.IsWord("false") && !token_.IsWord("null")) {
      Want("a value");
    }
    Skip();
    return start;
  }

  /// What stands from one part of the text to the end of a later one.
  static std::string_view UpTo(std::string_view start, std::string_view end) {
    return {start.data(), static_cast<size_t>(end.data() + end.size() - start.data())};
  }

  const MofSource& source_;
  MofLexer lexer_;
  MofToken token_;
  std::set<std::string_view> aliases_;
  MofDocument& document_;
  // What is being collected; kept to be filled again.
  std::vector<Qualifier> qualifiers_;
  std::vector<PropertyDefinition> properties_;
};

/// Nothing for null.
std::optional<Scalar> ScalarOf(const MofToken& token, MofLexer& lexer) {
  if (token.Is('$')) return "$" + std::string(lexer.Next().text);
  if (token.kind != MofToken::Kind::kIdentifier) return LiteralOf(token);
  if (token.IsWord("null")) return std::nullopt;
  return token.IsWord("true");
}

}  // namespace

void ParseMof(const MofSource& source, MofDocument& document) {
  MofParser(source, document).Parse();
}

Value ValueOf(std::string_view text) {
  const MofSource source{{}, text};
  MofLexer lexer(source);
  MofToken token = lexer.Next();
  if (!token.Is('{')) {
    const auto scalar = ScalarOf(token, lexer);
    return scalar ? ToValue(*scalar) : Value();
  }
  Array array;
  for (token = lexer.Next(); !token.Is('}'); token = lexer.Next()) {
    if (!token.Is(',')) array.push_back(*ScalarOf(token, lexer));
  }
  return array;
}

}  // namespace tqcim::host

#include "host/mof_parser.h"

#include <algorithm>
#include <set>
#include <utility>

#include "host/cim_type.h"
#include "host/text.h"

namespace tqcim::host {
namespace {

class MofParser {
 public:
  MofParser(const std::string& file, std::string_view text) : lexer_(file, text) { Skip(); }

  MofDocument Parse() {
    while (token_.kind != MofToken::Kind::kEnd) Declaration();
    return std::move(document_);
  }

 private:
  /// Gives the current token and moves on to the next.
  MofToken Take() { return std::exchange(token_, lexer_.Next()); }
  void Skip() { token_ = lexer_.Next(); }

  [[noreturn]] void Refuse(const std::string& wanted) const {
    throw MofError(token_.place, wanted + " should stand here, not " + token_.Describe());
  }
  bool TakeIf(char punctuation) {
    if (!token_.Is(punctuation)) return false;
    Skip();
    return true;
  }
  void Expect(char punctuation) {
    if (!TakeIf(punctuation)) Refuse(std::string("'") + punctuation + "'");
  }
  std::string_view ExpectName(const char* what) {
    if (token_.kind != MofToken::Kind::kIdentifier) Refuse(what);
    const std::string_view name = token_.text;
    Skip();
    return name;
  }

  void Declaration() {
    if (token_.Is('#')) return Directive();
    if (token_.IsWord("instance")) return InstanceDeclaration();
    std::vector<Qualifier> qualifiers = QualifierList();
    if (!token_.IsWord("class")) Refuse("a class, an instance or a directive");
    Skip();
    ClassDeclaration(std::move(qualifiers));
  }

  void Directive() {
    Skip();
    if (!token_.IsWord("pragma")) Refuse("'pragma'");
    Skip();
    if (token_.IsWord("include")) {
      throw MofError(token_.place, "files cannot be included: give them one by one");
    }
    ExpectName("the name of a directive");
    if (!TakeIf('(')) return;
    while (!TakeIf(')')) {
      const bool word = token_.kind == MofToken::Kind::kIdentifier ||
                        token_.kind == MofToken::Kind::kText ||
                        token_.kind == MofToken::Kind::kInteger || token_.Is(',');
      if (!word) Refuse("an argument of the directive or ')'");
      Skip();
    }
  }

  std::vector<Qualifier> QualifierList() {
    std::vector<Qualifier> qualifiers;
    if (!TakeIf('[')) return qualifiers;
    do {
      const MofPlace place = token_.place;
      Qualifier qualifier{std::string(ExpectName("the name of a qualifier")), true};
      if (FindQualifier(qualifiers, qualifier.name)) {
        throw MofError(place, "qualifier " + qualifier.name + " stands twice");
      }
      if (TakeIf('(')) {
        qualifier.value = SingleValue();
        Expect(')');
      } else if (token_.Is('{')) {
        qualifier.value = ArrayValue();
      }
      if (TakeIf(':')) {
        while (token_.kind == MofToken::Kind::kIdentifier) Skip();
      }
      qualifiers.push_back(std::move(qualifier));
    } while (TakeIf(','));
    Expect(']');
    return qualifiers;
  }

  void ClassDeclaration(std::vector<Qualifier> qualifiers) {
    ParsedClass parsed;
    parsed.place = token_.place;
    parsed.name = ExpectName("the name of a class");
    parsed.qualifiers = std::move(qualifiers);
    if (TakeIf(':')) {
      parsed.superclass_place = token_.place;
      parsed.superclass = ExpectName("the name of the superclass");
    }
    Expect('{');
    while (!TakeIf('}')) {
      ParsedProperty property = PropertyDeclaration();
      if (std::any_of(parsed.properties.begin(), parsed.properties.end(),
                      [&](const auto& before) { return EqualNames(before.name, property.name); })) {
        throw MofError(property.place, "property " + std::string(property.name) + " stands twice");
      }
      parsed.properties.push_back(std::move(property));
    }
    Expect(';');
    document_.classes.push_back(std::move(parsed));
  }

  ParsedProperty PropertyDeclaration() {
    ParsedProperty property;
    property.qualifiers = QualifierList();
    const MofPlace type_place = token_.place;
    const std::string_view type_name = ExpectName("the type of a property or '}'");
    if (token_.IsWord("ref")) {
      Skip();
      property.type = CimType::kReference;
      property.reference_class = type_name;
    } else if (const auto type = TypeOfName(type_name)) {
      property.type = *type;
    } else {
      throw MofError(type_place, std::string(type_name) + " is not a CIM type");
    }
    property.place = token_.place;
    property.name = ExpectName("the name of a property");
    if (token_.Is('(')) throw MofError(token_.place, "methods are not supported");
    if (TakeIf('[')) {
      property.array = true;
      if (token_.kind == MofToken::Kind::kInteger) Skip();
      Expect(']');
    }
    if (TakeIf('=')) {
      const MofPlace place = token_.place;
      const Value value = AnyValue();
      const auto converted = ConvertToType(value, property.type, property.array);
      if (!converted) {
        throw MofError(place, "the value is not of the type of " + std::string(property.name));
      }
      property.default_value = *converted;
    }
    Expect(';');
    return property;
  }

  void InstanceDeclaration() {
    Skip();
    if (!token_.IsWord("of")) Refuse("'of'");
    Skip();
    ParsedInstance parsed;
    parsed.place = token_.place;
    parsed.class_name = ExpectName("the name of a class");
    if (token_.IsWord("as")) {
      Skip();
      Expect('$');
      aliases_.emplace(ExpectName("the name of an alias"));
    }
    Expect('{');
    while (!TakeIf('}')) {
      ParsedAssignment assignment;
      assignment.place = token_.place;
      assignment.property = ExpectName("the name of a property or '}'");
      Expect('=');
      assignment.value = AnyValue();
      Expect(';');
      parsed.assignments.push_back(std::move(assignment));
    }
    Expect(';');
    document_.instances.push_back(std::move(parsed));
  }

  Value AnyValue() { return token_.Is('{') ? ArrayValue() : SingleValue(); }

  Value ArrayValue() {
    Expect('{');
    Array array;
    if (TakeIf('}')) return array;
    constexpr size_t kFew = 16;
    array.reserve(kFew);
    do {
      const MofPlace place = token_.place;
      auto element = ToScalar(SingleValue());
      if (!element) throw MofError(place, "an array holds no null");
      array.push_back(std::move(*element));
    } while (TakeIf(','));
    Expect('}');
    return array;
  }

  /// A value that is not an array.
  Value SingleValue() {
    switch (token_.kind) {
      case MofToken::Kind::kText:
        return std::string(Take().text);
      case MofToken::Kind::kCharacter:
      case MofToken::Kind::kInteger:
      case MofToken::Kind::kReal:
        return std::visit([](auto number) -> Value { return number; }, Take().number);
      case MofToken::Kind::kIdentifier:
        if (token_.IsWord("true") || token_.IsWord("false")) return Take().IsWord("true");
        if (token_.IsWord("null")) return Take(), Value{};
        break;
      default:
        if (TakeIf('$')) return Alias();
        break;
    }
    Refuse("a value");
  }

  Value Alias() {
    const MofPlace place = token_.place;
    const std::string name(ExpectName("the name of an alias"));
    if (!aliases_.contains(name)) throw MofError(place, "alias $" + name + " is not declared");
    return "$" + name;
  }

  MofLexer lexer_;
  MofToken token_;
  std::set<std::string> aliases_;
  MofDocument document_;
};

}  // namespace

MofDocument ParseMof(const std::string& file, std::string_view text) {
  return MofParser(file, text).Parse();
}

}  // namespace tqcim::host

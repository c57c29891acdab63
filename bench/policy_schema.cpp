// Prints an XML schema of the policy document, made from its tables, for the data binding compiler.
#include <iostream>
#include <map>
#include <string>

#include "plan.h"
#include "policy/policy.h"

namespace {

using namespace tolva::bench;
using namespace tolva::node;

/// Tables may share an element's name; types may not.
class Types {
 public:
  void Print(const Plan& plan) {
    std::map<const Plan*, std::string>& names = names_;
    if (names.contains(&plan)) return;
    names[&plan] = "T" + std::to_string(names.size()) + "_" + plan.name;
    for (const Plan::ChildRow& child : plan.children) Print(*child.plan);
    std::cout << "<xs:complexType name='" << names[&plan] << "'>\n<xs:sequence>\n";
    for (const Plan::ChildRow& child : plan.children) {
      const Occurrence occurrence = child.row->occurrence;
      std::cout << "<xs:element name='" << child.name << "' type='" << names[child.plan] << "'"
                << (occurrence == Occurrence::kRequired ? "" : " minOccurs='0'")
                << (occurrence == Occurrence::kRepeated ? " maxOccurs='unbounded'" : "") << "/>\n";
    }
    std::cout << "</xs:sequence>\n";
    for (const Plan::AttributeRow& attribute : plan.attributes) Print(attribute);
    std::cout << "</xs:complexType>\n";
  }

  std::string NameOf(const Plan& plan) const { return names_.at(&plan); }

 private:
  static void Print(const Plan::AttributeRow& attribute) {
    std::cout << "<xs:attribute name='" << attribute.name << "' use='"
              << (attribute.row->is_optional ? "optional" : "required") << "'";
    if (attribute.row->type == ValueType::kEnum) {
      std::cout << "><xs:simpleType><xs:restriction base='xs:string'>";
      for (const std::string& text : attribute.enum_texts) {
        std::cout << "<xs:enumeration value='" << text << "'/>";
      }
      std::cout << "</xs:restriction></xs:simpleType></xs:attribute>\n";
      return;
    }
    const char* const type = attribute.row->type == ValueType::kString       ? "xs:string"
                             : attribute.row->type == ValueType::kLongNumber ? "xs:unsignedLong"
                                                                             : "xs:unsignedInt";
    std::cout << " type='" << type << "'/>\n";
  }

  std::map<const Plan*, std::string> names_;
};

}  // namespace

int main() {
  const Plans plans(TolvaInterface::CILPClientConfiguration::kSchema);
  std::cout << "<?xml version='1.0'?>\n<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'>\n";
  Types types;
  types.Print(plans.root());
  std::cout << "<xs:element name='" << plans.root().name << "' type='" << types.NameOf(plans.root())
            << "'/>\n</xs:schema>\n";
}

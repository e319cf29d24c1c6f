// The structure check of serialized data objects in the XML layout, made
// before a tree is handed to the Deserializer: the deserializer stops the
// process through the fatal-error routine when an object section is missing
// where it expects one, so text from outside must be checked first.
//
// The check follows the deserializer's own walk: it looks where the
// deserializer would look, and only there. An object whose class the
// factory cannot make (or that does not fit its section) comes back null
// without anything below it being read, so nothing below it is checked.
//
// One check serves every tree: the XML text reader's document and a DOM
// document of the XML library (checkDocumentLayout below).
#ifndef DBGDATA_LAYOUTCHECK_H
#define DBGDATA_LAYOUTCHECK_H

#include <xercesc/util/XercesDefs.hpp>

#include <cstddef>
#include <cstring>
#include <string>
#include <vector>

XERCES_CPP_NAMESPACE_BEGIN
class DOMElement;
XERCES_CPP_NAMESPACE_END

namespace Vemo {
namespace DbgData {

// The deepest element nesting accepted in text from outside: the
// deserializer, the lists' destructors and the writers recurse once per
// level.
constexpr unsigned kMaxLayoutDepth = 600;

// The three sections an object is written in, in the order in which the
// deserializer looks for them.
enum LayoutSection : int {
  LayoutDataList,
  LayoutDataListWC,
  LayoutDataElement
};

// Whether the deserializer makes an object for a section with this class
// name: the factory knows the class and its objects are of the section's
// kind (lists only of the generic list classes). Answers are remembered for
// the lifetime of the object.
class LayoutFactoryProbe {
public:
  bool makes(LayoutSection section, const char* className);

private:
  struct Answer {
    LayoutSection section;
    std::string className;
    bool made;
  };
  std::vector<Answer> m_answers;
  std::size_t m_last = 0;
};

// Checks the objects below a document element: it must hold at least one
// object section ("DataList", "DataListWC" or "DataElement" child), and
// every one of them must be readable without the fatal-error routine, both
// by one deserialize() with the document element as the reader's current
// node (which reads the first object section found) and object by object.
// Other children of the document element are left alone.
//
// Tree adapts the document: Tree::Node is a copyable handle (null: a
// default-constructed one that converts to false), and the tree answers
//   Node firstChild(Node) const, Node nextSibling(Node) const:
//     the nodes the reader sees, elements and text other than white space;
//   bool isElement(Node) const;
//   bool nameIs(Node, const char* name) const;
//   const char* attribute(Node, const char* name) const: "" when missing.
// On failure *where is the node at fault and *message says what is wrong.
template <class Tree>
bool checkObjectLayout(const Tree& tree, typename Tree::Node documentElement,
                       typename Tree::Node* where, std::string* message);

// The same check on a DOM document of the XML library, whose document
// element is root. *problem then names the place of the fault as a path of
// elements, for example "/UserContentContainer/DataList[1]/List/Child[2]".
bool checkDocumentLayout(const xercesc::DOMElement* root, std::string* problem);

// ---------------------------------------------------------------------------

namespace LayoutCheckDetail {

extern const char* const kSectionNames[3];
extern const char* const kInnerSectionNames[4];

template <class Tree> class Walk {
public:
  typedef typename Tree::Node Node;

  Walk(const Tree& tree, Node* where, std::string* message)
      : m_tree(tree), m_where(where), m_message(message) {}

  Node firstNamed(Node parent, const char* name) const {
    for (Node child = m_tree.firstChild(parent); child;
         child = m_tree.nextSibling(child))
      if (m_tree.isElement(child) && m_tree.nameIs(child, name))
        return child;
    return Node();
  }

  // The object the deserializer reads with holder as its current node: in
  // a section of the first kind found (DataList before DataListWC before
  // DataElement), the first one of that kind.
  bool holder(Node holder) {
    Node found[3] = {Node(), Node(), Node()};
    for (Node child = m_tree.firstChild(holder); child;
         child = m_tree.nextSibling(child)) {
      if (!m_tree.isElement(child))
        continue;
      for (int section = LayoutDataList; section <= LayoutDataElement;
           ++section) {
        if (!found[section] && m_tree.nameIs(child, kSectionNames[section])) {
          found[section] = child;
          break;
        }
      }
    }
    for (int section = LayoutDataList; section <= LayoutDataElement;
         ++section) {
      if (found[section])
        return object(found[section], static_cast<LayoutSection>(section));
    }
    if (!m_tree.isElement(holder))
      return fail(holder, "text stands where an element holding a data "
                          "object must be");
    for (const char* inner : kInnerSectionNames)
      if (firstNamed(holder, inner))
        return fail(holder, std::string("a \"") + inner +
                                "\" section stands where a data object "
                                "must be");
    return fail(holder, "no data object where one must be");
  }

  // The object of section node, of the given kind.
  bool object(Node node, LayoutSection section) {
    if (!m_probe.makes(section, m_tree.attribute(node, "ClassName")))
      return true; // read as null, nothing below is read
    if (section == LayoutDataElement) {
      Node engineData = firstNamed(node, "EngineData");
      return !engineData || holder(engineData);
    }
    if (Node list = firstNamed(node, "List"))
      for (Node child = m_tree.firstChild(list); child;
           child = m_tree.nextSibling(child))
        if (!holder(child))
          return false;
    if (section == LayoutDataListWC)
      if (Node content = firstNamed(node, "Content"))
        return holder(content);
    return true;
  }

  bool document(Node root) {
    bool any = false;
    for (Node child = m_tree.firstChild(root); child;
         child = m_tree.nextSibling(child)) {
      if (!m_tree.isElement(child))
        continue;
      for (int section = LayoutDataList; section <= LayoutDataElement;
           ++section) {
        if (m_tree.nameIs(child, kSectionNames[section])) {
          any = true;
          if (!object(child, static_cast<LayoutSection>(section)))
            return false;
        }
      }
    }
    return any || fail(root, "the document element holds no data object");
  }

private:
  bool fail(Node node, const std::string& message) {
    *m_where = node;
    *m_message = message;
    return false;
  }

  const Tree& m_tree;
  Node* m_where;
  std::string* m_message;
  LayoutFactoryProbe m_probe;
};

} // namespace LayoutCheckDetail

template <class Tree>
bool checkObjectLayout(const Tree& tree, typename Tree::Node documentElement,
                       typename Tree::Node* where, std::string* message) {
  LayoutCheckDetail::Walk<Tree> walk(tree, where, message);
  return walk.document(documentElement);
}

} // namespace DbgData
} // namespace Vemo

#endif

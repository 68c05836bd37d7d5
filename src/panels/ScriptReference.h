#pragma once
// The ASP and JavaScript reference trees of the side panel: one row per property, method or
// event, the objects they belong to, what a click on a node shows and what a double click
// inserts.

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace tessarine {

class Application;

enum ReferenceItemType : std::int16_t { kProperty = 1, kMethod = 2, kEvent = 3 };

struct ObjectItem {
  std::string ObjectName;
  std::int16_t ItemType = kProperty;
  std::string ItemName;
  std::string Description;
  std::string Syntax;  // the argument part of the call; may be empty

  // "Application.Contents.Remove": the key of the row and of its tree node.
  std::string Key() const { return ObjectName + "." + ItemName; }
};

// The rows of one reference in the order they were added, reachable by key too.
class ObjectItems {
 public:
  // False (and nothing added) when the key is taken or the type is not 1, 2 or 3.
  bool Add(const std::string& objectName, std::int16_t itemType, const std::string& itemName,
           const std::string& description, const std::string& syntax);
  std::size_t Count() const { return items_.size(); }
  const ObjectItem& Item(std::size_t index) const { return items_[index]; }
  // The row of an "Object.Item" key, or null.
  const ObjectItem* Find(std::string_view key) const;
  auto begin() const { return items_.begin(); }
  auto end() const { return items_.end(); }

 private:
  std::vector<ObjectItem> items_;
  std::unordered_map<std::string, std::size_t> byKey_;
};

// An object of a reference: its node text, and the title and sentence its click shows.
struct ReferenceObject {
  const char* name;
  const char* title;
  const char* description;
};

std::span<const ReferenceObject> ASPObjects();
std::span<const ReferenceObject> JSObjects();
// Each adds its whole table, in order, to an empty collection.
void FillASPItems(ObjectItems& items);
void FillJSItems(ObjectItems& items);

// One node of a tree, in the order the tree is filled: each object, then its rows.
struct ReferenceNode {
  std::string key;
  std::string text;
  std::string parentKey;      // empty for an object
  std::int16_t itemType = 0;  // 0 for an object
};
std::vector<ReferenceNode> BuildTree(std::span<const ReferenceObject> objects,
                                     const ObjectItems& items);

// What a click on a node shows and what a double click on it then inserts.
struct NodeDescription {
  std::string title;
  std::string syntax;
  std::string description;
  std::string insertText;
};
// A node whose text names an object describes the object; any other node the first row
// whose key is the node's key. Nothing matched gives empty texts.
NodeDescription DescribeNode(std::span<const ReferenceObject> objects, const ObjectItems& items,
                             const std::string& nodeText, const std::string& nodeKey);
// The description box's rich text: bold title, the syntax on its line, an empty line, the
// description.
std::string DescriptionHtml(const NodeDescription& d);

// The double click: the text goes in as it stands whatever the tag case, in place of any
// selection. An empty text leaves a selection alone.
void InsertReferenceText(Application& app, const std::string& insertText);

}  // namespace tessarine

#include "panels/ScriptReference.h"

#include "core/Application.h"
#include "core/TextServices.h"
#include "platform/EditControl.h"

namespace tessarine {

bool ObjectItems::Add(const std::string& objectName, std::int16_t itemType,
                      const std::string& itemName, const std::string& description,
                      const std::string& syntax) {
  if (itemType < kProperty || itemType > kEvent) return false;
  ObjectItem item{objectName, itemType, itemName, description, syntax};
  if (!byKey_.emplace(item.Key(), items_.size()).second) return false;
  items_.push_back(std::move(item));
  return true;
}

const ObjectItem* ObjectItems::Find(std::string_view key) const {
  const auto it = byKey_.find(std::string(key));
  return it == byKey_.end() ? nullptr : &items_[it->second];
}

std::vector<ReferenceNode> BuildTree(std::span<const ReferenceObject> objects,
                                     const ObjectItems& items) {
  std::vector<ReferenceNode> nodes;
  nodes.reserve(objects.size() + items.Count());
  for (const ReferenceObject& o : objects) {
    nodes.push_back({o.name, o.name, "", 0});
    for (const ObjectItem& row : items)
      if (row.ObjectName == o.name)
        nodes.push_back({row.Key(), row.ItemName, o.name, row.ItemType});
  }
  return nodes;
}

NodeDescription DescribeNode(std::span<const ReferenceObject> objects, const ObjectItems& items,
                             const std::string& nodeText, const std::string& nodeKey) {
  for (const ReferenceObject& o : objects)
    if (nodeText == o.name) return {o.title, "", o.description, o.name};
  // A walk in row order, not a key look-up: the first row with the key wins.
  for (const ObjectItem& row : items)
    if (row.ObjectName + "." + row.ItemName == nodeKey)
      return {row.ItemName, row.Syntax, row.Description,
              row.ObjectName + "." + row.ItemName + row.Syntax};
  return {};
}

namespace {
std::string Escaped(const std::string& text) {
  std::string out;
  out.reserve(text.size());
  for (char c : text) {
    switch (c) {
      case '<':
        out += "&lt;";
        break;
      case '>':
        out += "&gt;";
        break;
      case '&':
        out += "&amp;";
        break;
      case '"':
        out += "&quot;";
        break;
      default:
        out += c;
    }
  }
  return out;
}
}  // namespace

std::string DescriptionHtml(const NodeDescription& d) {
  return "<b>" + Escaped(d.title) + "</b>" + Escaped(d.syntax) + "<br><br>" +
         Escaped(d.description);
}

void InsertReferenceText(Application& app, const std::string& insertText) {
  // Written in place of a selection rather than around it, and in its own case. Without a
  // document the flag must not stay set for the next command.
  EditControl* e = app.ActiveEdit();
  if (!e) return;
  // Nothing to insert must not wipe a selection: the services leave no undo step for it.
  if (insertText.empty() && e->SelLength() > 0) return;
  app.textServices.ReplaceSelectionOnce = true;
  WrapSelection(app, insertText, "", true);
}

}  // namespace tessarine

#pragma once
// The special characters dialog: three pages of cells, each inserting its text.

#include <string>
#include <vector>

namespace tessarine {

class Application;

// The cells' texts, page by page (1 to 3), in the order the cells are tested.
const std::vector<std::string>& VowelsPage(int page);

// A press on a cell: the text goes in as it stands, whatever the tag case; the dialog stays.
void Vowels_Insert(Application& app, const std::string& cellText);

}  // namespace tessarine

#include "sitetools/RecordingSiteView.h"

namespace tessarine {

void RecordingSiteView::SetStatusText(const std::string& text) {
  // A crawl sets the same text once per link; the history keeps the changes only.
  if (statusHistory.empty() || statusHistory.back() != text) statusHistory.push_back(text);
  status = text;
}

std::string RecordingSiteView::Label(SiteLabel label) const {
  auto it = labels.find(label);
  return it == labels.end() ? std::string() : it->second;
}

}  // namespace tessarine

#include "styles/StyleSheetWriter.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

#include "core/TextServices.h"
#include "styles/CSSFunctions.h"

namespace tessarine {

namespace {

constexpr auto npos = std::string::npos;

char Upper(char c) {
  return (c >= 'a' && c <= 'z') ? static_cast<char>(c - 32) : c;
}

// A stretch of the text from one "{" up to the next (the first stretch from the start).
// A rule is found in the stretch that ends with its selector and blanks: the search for a
// selector restarts at every "{", so only the first match inside a stretch counts.
// Stretches are ranges of the text or of a growing store of what the writes added, linked
// in text order; a replaced stretch is left dead in place and never reused.
struct Piece {
  std::uint64_t order = 0;  // grows along the text
  std::size_t at = 0;
  std::uint32_t size = 0;  // larger texts are written rule after rule
  int prev = -1;
  int next = -1;
  bool added = false;  // a range of the store, not of the text
  bool alive = true;
};

struct Place {
  int piece = -1;
  std::size_t offset = 0;
};

// FNV-1a over the bytes from the last to the first, so that the selectors ending at one
// place are hashed in one walk backwards.
constexpr std::uint64_t kHashStart = 14695981039346656037ull;
std::uint64_t HashStep(std::uint64_t h, char c) {
  return (h ^ static_cast<unsigned char>(c)) * 1099511628211ull;
}
// In any case: the bytes are upper-cased as they are hashed.
std::uint64_t BackwardHash(std::string_view s) {
  std::uint64_t h = kHashStart;
  for (std::size_t i = s.size(); i > 0; --i) h = HashStep(h, Upper(s[i - 1]));
  return h;
}

class Writer {
 public:
  Writer(std::string_view text, const std::vector<StyleWrite>& writes) {
    for (const StyleWrite& w : writes) {
      const std::string_view selector = w.selector;
      if (!Indexable(selector)) {
        writeIds_.push_back(-1);
        continue;
      }
      const std::uint64_t hash = BackwardHash(selector);
      int id = Lookup(selector, hash);
      if (id < 0) {
        id = static_cast<int>(selectors_.size());
        const char last = selector.back();
        if (last == ' ' || last == '\t' || last == '\r' || last == '\n') spacedEnds_ = true;
        auto place =
            std::lower_bound(lengths_.begin(), lengths_.end(), selector.size(),
                             [](const Length& l, std::size_t size) { return l.length < size; });
        if (place == lengths_.end() || place->length != selector.size())
          place = lengths_.insert(place, Length{selector.size(), {}});
        const auto first = static_cast<unsigned char>(Upper(selector[0]));
        place->firsts[first / 64] |= std::uint64_t{1} << (first % 64);
        selectors_.push_back(selector);
        Insert(id, hash);
      }
      writeIds_.push_back(id);
      reserve_ += w.selector.size() + w.declarations.size() * (w.oneLine ? 2 : 1) + 16;
    }
    firstHolder_.assign(selectors_.size(), -1);
    Build(text);
  }

  // The `index`th write given to the constructor.
  void Write(const StyleWrite& w, std::size_t index) {
    const int id = writeIds_[index];
    if (id < 0 || (w.embedded && !Insertion(true).hasTag)) {
      WriteLiterally(w);
      return;
    }
    std::size_t match = 0;
    const int k = Holder(id, match);
    if (k < 0) {
      InsertAtInsertionPoint(w);
      return;
    }
    const int open = pieces_[k].next;
    Place close;
    const bool closed = FindClose(k, match, close);
    scratch_.clear();
    if (w.remove) {
      if (!closed) return;
      scratch_.append(TextOf(k).substr(0, match));
      scratch_.append(TextOf(close.piece).substr(close.offset + 1));
      Replace(k, close.piece);
      return;
    }
    AppendBody(w);
    if (!closed || close.piece == k) {
      // Nothing selected: the new body goes in before the old "{".
      scratch_.append(TextOf(open));
      Replace(open, open);
    } else {
      scratch_.append(TextOf(close.piece).substr(close.offset + 1));
      Replace(open, close.piece);
    }
  }

  std::string Text() const {
    std::size_t size = 0;
    for (int p = head_; p >= 0; p = pieces_[p].next) size += pieces_[p].size;
    std::string text;
    text.reserve(size);
    for (int p = head_; p >= 0; p = pieces_[p].next) text += TextOf(p);
    return text;
  }

 private:
  struct InsertionPoint {
    bool known = false;
    bool embedded = false;
    bool hasTag = false;
    Place at;
    // The last piece the answer depends on; an edit there or before it asks again.
    int guard = -1;
    bool guardsAll = false;
  };

  // Selectors that the stretches cannot hold are written the slow way.
  static bool Indexable(std::string_view selector) {
    return !selector.empty() && selector.find('{') == npos;
  }

  std::string_view TextOf(int p) const {
    const Piece& piece = pieces_[p];
    return (piece.added ? std::string_view(added_) : text_).substr(piece.at, piece.size);
  }

  // Open addressing over selector ids, keyed by the backward hash. Each slot keeps the
  // hash's top half too, so that most misses never touch the selector itself.
  void Insert(int id, std::uint64_t hash) {
    if (selectors_.size() * 2 > table_.size()) {
      std::vector<Slot> old;
      old.swap(table_);
      table_.assign(std::max<std::size_t>(64, old.size() * 2), Slot{});
      for (const Slot& held : old)
        if (held.id >= 0) PutInTable(held.id, BackwardHash(selectors_[held.id]));
    }
    PutInTable(id, hash);
  }
  void PutInTable(int id, std::uint64_t hash) {
    const std::size_t mask = table_.size() - 1;
    std::size_t slot = hash & mask;
    while (table_[slot].id >= 0) slot = (slot + 1) & mask;
    table_[slot] = {id, static_cast<std::uint32_t>(hash >> 32)};
  }
  // The selector that `text` is in any case.
  int Lookup(std::string_view text, std::uint64_t hash) const {
    if (table_.empty()) return -1;
    const std::size_t mask = table_.size() - 1;
    const auto check = static_cast<std::uint32_t>(hash >> 32);
    for (std::size_t slot = hash & mask; table_[slot].id >= 0; slot = (slot + 1) & mask)
      if (table_[slot].check == check && EqualsNoCase(text, selectors_[table_[slot].id]))
        return table_[slot].id;
    return -1;
  }

  void Build(std::string_view text) {
    pieces_.clear();
    holderEntries_.clear();
    std::fill(firstHolder_.begin(), firstHolder_.end(), -1);
    insertion_.known = false;
    text_ = text;
    added_.clear();
    added_.reserve(reserve_);
    // Each write adds a stretch or two as a rule.
    pieces_.reserve(CountParts(text, true) + writeIds_.size() * 2 + 8);
    head_ = tail_ = -1;
    frontier_ = AddPieces(false, 0, text.size(), true, -1, -1, 0, kGap);
  }

  // Links the stretches of store range [at, at + size), cut at every "{" (the first one is
  // not looked at unless `first`), between `before` and `after`, numbered from `low` by
  // `step`; returns the first one.
  int AddPieces(bool added, std::size_t at, std::size_t size, bool first, int before, int after,
                std::uint64_t low, std::uint64_t step) {
    const std::string_view range = (added ? std::string_view(added_) : text_).substr(at, size);
    int firstNew = -1;
    int prev = before;
    std::uint64_t order = low;
    std::size_t from = 0;
    std::size_t brace = range.find('{', first ? 0 : 1);
    while (true) {
      const std::size_t to = brace == npos ? range.size() : brace;
      const int p = static_cast<int>(pieces_.size());
      Piece& piece = pieces_.emplace_back();
      piece.added = added;
      piece.at = at + from;
      piece.size = static_cast<std::uint32_t>(to - from);
      piece.order = order += step;
      piece.prev = prev;
      if (prev >= 0)
        pieces_[prev].next = p;
      else
        head_ = p;
      if (firstNew < 0) firstNew = p;
      prev = p;
      if (brace == npos) break;
      from = brace;
      brace = range.find('{', brace + 1);
    }
    pieces_[prev].next = after;
    if (after >= 0)
      pieces_[after].prev = prev;
    else
      tail_ = prev;
    return firstNew;
  }

  static std::size_t CountParts(std::string_view text, bool first) {
    std::size_t parts = 1;
    for (std::size_t at = text.find('{', first ? 0 : 1); at != npos; at = text.find('{', at + 1))
      ++parts;
    return parts;
  }

  void Index(int p) {
    if (pieces_[p].next < 0) return;  // no "{" follows
    const std::string_view u = TextOf(p);
    // Ends of a selector followed by a blank gap up to the "{", found walking back; only
    // the furthest back matters unless a selector ends in white space.
    if (spacedEnds_) ends_.assign(1, u.size());
    bool wantCr = false;
    std::size_t i = u.size();
    std::size_t lastEnd = i;
    while (i > 0) {
      const char c = u[i - 1];
      if (c == ' ' || c == '\t') {
      } else if (!wantCr && c == '\n') {
        wantCr = true;
      } else if (wantCr && c == '\r') {
        wantCr = false;
      } else {
        break;
      }
      --i;
      if (wantCr) continue;
      lastEnd = i;
      if (spacedEnds_) ends_.push_back(i);
    }
    if (!spacedEnds_) {
      Candidates(p, u, lastEnd);
      return;
    }
    for (std::size_t end : ends_) Candidates(p, u, end);
  }

  // The selectors that end at `end` and are the first match in the stretch.
  void Candidates(int p, std::string_view t, std::size_t end) {
    std::uint64_t h = kHashStart;
    std::size_t hashed = 0;
    for (const Length& l : lengths_) {
      const std::size_t length = l.length;
      if (length > end) break;
      while (hashed < length) h = HashStep(h, Upper(t[end - 1 - hashed++]));
      const auto first = static_cast<unsigned char>(Upper(t[end - length]));
      if (!(l.firsts[first / 64] >> (first % 64) & 1)) continue;
      const int id = Lookup(t.substr(end - length, length), h);
      if (id >= 0 && FindNoCase(t, selectors_[id]) == end - length) {
        holderEntries_.push_back({p, firstHolder_[id], end - length});
        firstHolder_[id] = static_cast<int>(holderEntries_.size() - 1);
      }
    }
  }

  // The first living stretch that holds the selector; dead ones are unlinked on the way.
  // Stretches are indexed in text order only as far as a look-up needs.
  int Holder(int id, std::size_t& match) {
    int best = -1;
    int* link = &firstHolder_[id];
    while (*link >= 0) {
      HolderEntry& e = holderEntries_[*link];
      if (!pieces_[e.piece].alive) {
        *link = e.next;
        continue;
      }
      if (best < 0 || pieces_[e.piece].order < pieces_[best].order) {
        best = e.piece;
        match = e.match;
      }
      link = &e.next;
    }
    while (best < 0 && frontier_ >= 0) {
      const int p = frontier_;
      frontier_ = pieces_[p].next;
      Index(p);
      if (firstHolder_[id] >= 0 && holderEntries_[firstHolder_[id]].piece == p) {
        best = p;
        match = holderEntries_[firstHolder_[id]].match;
      }
    }
    return best;
  }

  // The first "}" at or after the match, anywhere further on.
  bool FindClose(int k, std::size_t match, Place& close) const {
    int p = k;
    std::size_t at = TextOf(k).find('}', match);
    while (at == npos) {
      p = pieces_[p].next;
      if (p < 0) return false;
      at = TextOf(p).find('}');
    }
    close = {p, at};
    return true;
  }

  void AppendBody(const StyleWrite& w) {
    scratch_.append("{\r\n");
    if (w.oneLine)
      AppendDocumentLayout(scratch_, w.declarations);
    else
      scratch_.append(w.declarations);
    scratch_.append("\r\n}");
  }

  // Replaces the pieces from `from` to `to` (both included) by scratch_, cut anew; returns
  // the first new piece.
  int Replace(int from, int to) {
    if (insertion_.known &&
        (insertion_.guardsAll || pieces_[from].order <= pieces_[insertion_.guard].order))
      insertion_.known = false;
    const bool first = from == head_;
    // Stretches before the frontier are indexed, and so must be new ones that stand there.
    const bool indexed = frontier_ < 0 || pieces_[from].order < pieces_[frontier_].order;
    const bool frontierReplaced = frontier_ >= 0 &&
                                  pieces_[from].order <= pieces_[frontier_].order &&
                                  pieces_[frontier_].order <= pieces_[to].order;
    const int before = pieces_[from].prev;
    const int after = pieces_[to].next;
    for (int p = from;; p = pieces_[p].next) {
      pieces_[p].alive = false;
      if (p == to) break;
    }
    const std::size_t at = added_.size();
    added_ += scratch_;
    const std::uint64_t slots = CountParts(scratch_, first) + 1;
    auto low = [&] { return before < 0 ? std::uint64_t{0} : pieces_[before].order; };
    auto high = [&] { return after < 0 ? low() + kGap * slots : pieces_[after].order; };
    if (high() - low() < slots) Renumber();
    const std::uint64_t step = (high() - low()) / slots;
    const int firstNew = AddPieces(true, at, scratch_.size(), first, before, after, low(), step);
    if (indexed) {
      for (int p = firstNew; p != after; p = pieces_[p].next) Index(p);
      if (frontierReplaced) frontier_ = after;
    } else if (frontierReplaced) {
      frontier_ = firstNew;
    }
    return firstNew;
  }

  void Renumber() {
    std::uint64_t order = 0;
    for (int p = head_; p >= 0; p = pieces_[p].next) pieces_[p].order = order += kGap;
  }

  // Just behind the first "<STYLE" tag's ">", or at the end of a text that is no page.
  const InsertionPoint& Insertion(bool embedded) {
    if (insertion_.known && insertion_.embedded == embedded) return insertion_;
    insertion_ = {true, embedded, false, {head_, 0}, tail_, true};
    if (!embedded) {
      insertion_.at = {tail_, pieces_[tail_].size};
      return insertion_;
    }
    for (int p = head_; p >= 0; p = pieces_[p].next) {
      const std::size_t tag = FindNoCase(TextOf(p), "<STYLE");
      if (tag == npos) continue;
      insertion_.hasTag = true;
      for (std::size_t gt = TextOf(p).find('>', tag); p >= 0;
           p = pieces_[p].next, gt = p < 0 ? npos : TextOf(p).find('>')) {
        if (gt != npos) {
          insertion_.at = {p, gt + 1};
          insertion_.guard = p;
          insertion_.guardsAll = false;
          break;
        }
      }
      break;
    }
    return insertion_;
  }

  void InsertAtInsertionPoint(const StyleWrite& w) {
    const InsertionPoint point = Insertion(w.embedded);
    const Place at = point.at;
    const bool tagClosed = point.hasTag && !point.guardsAll;
    scratch_.clear();
    scratch_.append(TextOf(at.piece).substr(0, at.offset));
    scratch_.append("\r\n").append(w.selector).append("\r\n");
    AppendBody(w);
    scratch_.append("\r\n").append(TextOf(at.piece).substr(at.offset));
    const int first = Replace(at.piece, at.piece);
    // The tag and its ">" stand before the new rule: the next one goes in at the same place.
    if (w.embedded && tagClosed) insertion_ = {true, true, true, {first, at.offset}, first, false};
  }

  void WriteLiterally(const StyleWrite& w) {
    std::string text = Text();
    ApplyTextEdits(
        text, StyleWriteEdits(text, w.selector, DeclarationsAsWritten(w), w.embedded, w.remove));
    rebuilt_ = std::move(text);
    Build(rebuilt_);
  }

  static constexpr std::uint64_t kGap = std::uint64_t{1} << 32;

  struct HolderEntry {
    int piece;
    int next;           // the selector's next entry, or -1
    std::size_t match;  // where the selector stands in the stretch
  };

  std::string_view text_;  // the text given, or rebuilt_
  std::string rebuilt_;    // the text after a write made the slow way
  std::string added_;      // every piece written since, never shrunk
  std::vector<Piece> pieces_;
  int head_ = -1;
  int tail_ = -1;
  int frontier_ = -1;        // the first stretch not yet indexed, or -1 when all are
  std::size_t reserve_ = 0;  // what the writes add at most, beyond the stretches they keep
  std::string scratch_;      // the text of a replacement, before it joins the store

  std::vector<std::string_view> selectors_;  // the writes' own, by id
  struct Slot {
    int id = -1;
    std::uint32_t check = 0;
  };
  std::vector<Slot> table_;  // selector ids by backward hash
  // The lengths of the selectors, ascending, each with the bytes its selectors begin with:
  // most places need no look-up at all.
  struct Length {
    std::size_t length;
    std::uint64_t firsts[4];
  };
  std::vector<Length> lengths_;
  std::vector<int> writeIds_;     // by write, -1 for a selector written the slow way
  std::vector<int> firstHolder_;  // by selector id: its first entry, or -1
  std::vector<HolderEntry> holderEntries_;
  std::vector<std::size_t> ends_;
  bool spacedEnds_ = false;
  InsertionPoint insertion_;
};

}  // namespace

std::string DeclarationsAsWritten(const StyleWrite& w) {
  return w.oneLine ? FormattedStyleDefinition(w.declarations, kStyleForDocument)
                   : std::string(w.declarations);
}

std::string WriteStyleDefinitions(std::string_view text, const std::vector<StyleWrite>& writes) {
  if (text.size() > UINT32_MAX / 2) {
    std::string written(text);
    for (const StyleWrite& w : writes)
      ApplyTextEdits(written, StyleWriteEdits(written, w.selector, DeclarationsAsWritten(w),
                                              w.embedded, w.remove));
    return written;
  }
  Writer writer(text, writes);
  for (std::size_t i = 0; i < writes.size(); ++i) writer.Write(writes[i], i);
  return writer.Text();
}

}  // namespace tessarine

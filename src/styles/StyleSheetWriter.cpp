#include "styles/StyleSheetWriter.h"

#include <algorithm>
#include <cstdint>
#include <list>
#include <unordered_map>

#include "core/TextServices.h"
#include "styles/CSSFunctions.h"

namespace tessarine {

namespace {

constexpr auto npos = std::string::npos;

// A stretch of the text from one "{" up to the next (the first stretch from the start).
// A rule is found in the stretch that ends with its selector and blanks: the search for a
// selector restarts at every "{", so only the first match inside a stretch counts.
struct Piece;
using PieceList = std::list<Piece>;
using PieceIt = PieceList::iterator;

struct Piece {
  std::string text;
  std::string upper;
  std::uint64_t order = 0;  // grows along the text
  std::vector<int> holds;   // selectors whose rule this stretch ends with
  PieceIt self;
};

struct Place {
  PieceIt piece;
  std::size_t offset = 0;
};

class Writer {
 public:
  Writer(std::string_view text, const std::vector<StyleWrite>& writes) {
    for (const StyleWrite& w : writes) {
      std::string upper = UCase(w.selector);
      if (!Indexable(upper)) {
        writeIds_.push_back(-1);
        continue;
      }
      const auto [at, added] = idOf_.emplace(upper, static_cast<int>(selectors_.size()));
      writeIds_.push_back(at->second);
      if (!added) continue;
      selectors_.push_back(upper);
      const char last = upper.back();
      if (last == ' ' || last == '\t' || last == '\r' || last == '\n') spacedEnds_ = true;
    }
    holders_.resize(selectors_.size());
    for (std::size_t id = 0; id < selectors_.size(); ++id)
      reversed_.emplace_back(std::string(selectors_[id].rbegin(), selectors_[id].rend()),
                             static_cast<int>(id));
    std::sort(reversed_.begin(), reversed_.end());
    Build(text);
  }

  // The `index`th write given to the constructor.
  void Write(const StyleWrite& w, std::size_t index) {
    const int id = writeIds_[index];
    if (id < 0 || (w.embedded && !Insertion(true).hasTag)) {
      WriteLiterally(w);
      return;
    }
    const std::string& upper = selectors_[static_cast<std::size_t>(id)];
    const std::string body = "{\r\n" + w.declarations + "\r\n}";
    Piece* holder = Holder(id);
    if (!holder) {
      InsertAtInsertionPoint(w, body);
      return;
    }
    const PieceIt k = holder->self;
    const PieceIt open = std::next(k);
    const std::size_t match = k->upper.find(upper);
    Place close;
    const bool closed = FindClose(k, match, close);
    if (w.remove) {
      if (!closed) return;
      Replace(k, close.piece,
              k->text.substr(0, match) + close.piece->text.substr(close.offset + 1));
    } else if (!closed || close.piece == k) {
      // Nothing selected: the new body goes in before the old "{".
      Replace(open, open, body + open->text);
    } else {
      Replace(open, close.piece, body + close.piece->text.substr(close.offset + 1));
    }
  }

  std::string Text() const {
    std::size_t size = 0;
    for (const Piece& p : pieces_) size += p.text.size();
    std::string text;
    text.reserve(size);
    for (const Piece& p : pieces_) text += p.text;
    return text;
  }

 private:
  struct InsertionPoint {
    bool known = false;
    bool embedded = false;
    bool hasTag = false;
    Place at;
    // The last piece the answer depends on; an edit there or before it asks again.
    PieceIt guard;
    bool guardsAll = false;
  };

  // Selectors that the stretches cannot hold are written the slow way.
  static bool Indexable(const std::string& upper) {
    return !upper.empty() && upper.find('{') == npos;
  }

  void Build(std::string_view text) {
    pieces_.clear();
    for (auto& h : holders_) h.clear();
    insertion_.known = false;
    std::uint64_t order = 0;
    for (std::string& t : Split(text, true)) {
      Piece& p = pieces_.emplace_back();
      p.text = std::move(t);
      p.upper = UCase(p.text);
      p.order = order += kGap;
      p.self = std::prev(pieces_.end());
    }
    for (Piece& p : pieces_) Index(p);
  }

  // Cut at every "{"; all pieces but maybe the first of the text begin with one.
  static std::vector<std::string> Split(std::string_view text, bool first) {
    std::vector<std::string> out;
    std::size_t from = 0;
    std::size_t at = text.find('{', first ? 0 : 1);
    while (at != npos) {
      out.emplace_back(text.substr(from, at - from));
      from = at;
      at = text.find('{', at + 1);
    }
    out.emplace_back(text.substr(from));
    return out;
  }

  void Index(Piece& p) {
    p.holds.clear();
    if (std::next(p.self) == pieces_.end()) return;  // no "{" follows
    const std::string& u = p.upper;
    // Ends of a selector followed by a blank gap up to the "{", found walking back.
    std::vector<std::size_t> ends{u.size()};
    bool wantCr = false;
    std::size_t i = u.size();
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
      if (!wantCr) ends.push_back(i);
    }
    if (!spacedEnds_) ends.assign(1, ends.back());
    for (std::size_t end : ends) Candidates(p, end);
  }

  // The selectors that end at `end`: a walk down the sorted reversed selectors.
  void Candidates(Piece& p, std::size_t end) {
    const std::string& u = p.upper;
    std::size_t lo = 0, hi = reversed_.size();
    for (std::size_t depth = 0; lo < hi; ++depth) {
      while (lo < hi && reversed_[lo].first.size() == depth) {
        const int id = reversed_[lo++].second;
        if (u.find(selectors_[id]) == end - depth) {  // the first match in the stretch
          p.holds.push_back(id);
          holders_[id].push_back(&p);
        }
      }
      if (depth >= end || lo >= hi) break;
      const auto c = static_cast<unsigned char>(u[end - 1 - depth]);
      auto first = reversed_.begin() + static_cast<std::ptrdiff_t>(lo);
      auto last = reversed_.begin() + static_cast<std::ptrdiff_t>(hi);
      auto below = [depth](const auto& e, unsigned char ch) {
        return static_cast<unsigned char>(e.first[depth]) < ch;
      };
      auto above = [depth](unsigned char ch, const auto& e) {
        return ch < static_cast<unsigned char>(e.first[depth]);
      };
      lo = static_cast<std::size_t>(std::lower_bound(first, last, c, below) - reversed_.begin());
      hi = static_cast<std::size_t>(std::upper_bound(first, last, c, above) - reversed_.begin());
    }
  }

  void Unindex(Piece& p) {
    for (int id : p.holds) {
      auto& h = holders_[id];
      h.erase(std::find(h.begin(), h.end(), &p));
    }
    p.holds.clear();
  }

  Piece* Holder(int id) const {
    Piece* best = nullptr;
    for (Piece* p : holders_[id])
      if (!best || p->order < best->order) best = p;
    return best;
  }

  // The first "}" at or after the match, anywhere further on.
  bool FindClose(PieceIt k, std::size_t match, Place& close) {
    PieceIt it = k;
    std::size_t at = k->text.find('}', match);
    while (at == npos) {
      if (++it == pieces_.end()) return false;
      at = it->text.find('}');
    }
    close = {it, at};
    return true;
  }

  // Replaces the pieces from `from` to `to` (both included) by `text`, cut anew; returns
  // the first new piece.
  PieceIt Replace(PieceIt from, PieceIt to, const std::string& text) {
    if (insertion_.known && (insertion_.guardsAll || from->order <= insertion_.guard->order))
      insertion_.known = false;
    const bool first = from == pieces_.begin();
    const PieceIt before = first ? pieces_.end() : std::prev(from);
    const PieceIt after = std::next(to);
    for (PieceIt it = from; it != after; ++it) Unindex(*it);
    pieces_.erase(from, after);
    std::vector<std::string> parts = Split(text, first);
    const std::uint64_t slots = parts.size() + 1;
    auto low = [&] { return first ? std::uint64_t{0} : before->order; };
    auto high = [&] { return after == pieces_.end() ? low() + kGap * slots : after->order; };
    if (high() - low() < slots) Renumber();
    const std::uint64_t step = (high() - low()) / slots;
    std::uint64_t order = low();
    PieceIt firstNew = after;
    for (std::string& part : parts) {
      PieceIt it = pieces_.emplace(after, Piece{});
      it->text = std::move(part);
      it->upper = UCase(it->text);
      it->order = order += step;
      it->self = it;
      if (firstNew == after) firstNew = it;
    }
    for (PieceIt it = firstNew; it != after; ++it) Index(*it);
    return firstNew;
  }

  void Renumber() {
    std::uint64_t order = 0;
    for (Piece& p : pieces_) p.order = order += kGap;
  }

  // Just behind the first "<STYLE" tag's ">", or at the end of a text that is no page.
  const InsertionPoint& Insertion(bool embedded) {
    if (insertion_.known && insertion_.embedded == embedded) return insertion_;
    const PieceIt last = std::prev(pieces_.end());
    insertion_ = {true, embedded, false, {pieces_.begin(), 0}, last, true};
    if (!embedded) {
      insertion_.at = {last, last->text.size()};
      return insertion_;
    }
    for (PieceIt it = pieces_.begin(); it != pieces_.end(); ++it) {
      const std::size_t tag = it->upper.find("<STYLE");
      if (tag == npos) continue;
      insertion_.hasTag = true;
      for (std::size_t gt = it->text.find('>', tag); it != pieces_.end();
           ++it, gt = it == pieces_.end() ? npos : it->text.find('>')) {
        if (gt != npos) {
          insertion_.at = {it, gt + 1};
          insertion_.guard = it;
          insertion_.guardsAll = false;
          break;
        }
      }
      break;
    }
    return insertion_;
  }

  void InsertAtInsertionPoint(const StyleWrite& w, const std::string& body) {
    const InsertionPoint point = Insertion(w.embedded);
    const Place at = point.at;
    const bool tagClosed = point.hasTag && !point.guardsAll;
    const std::string rule = "\r\n" + w.selector + "\r\n" + body + "\r\n";
    const PieceIt first =
        Replace(at.piece, at.piece,
                at.piece->text.substr(0, at.offset) + rule + at.piece->text.substr(at.offset));
    // The tag and its ">" stand before the new rule: the next one goes in at the same place.
    if (w.embedded && tagClosed) insertion_ = {true, true, true, {first, at.offset}, first, false};
  }

  void WriteLiterally(const StyleWrite& w) {
    std::string text = Text();
    ApplyTextEdits(text, StyleWriteEdits(text, w.selector, w.declarations, w.embedded, w.remove));
    Build(text);
  }

  static constexpr std::uint64_t kGap = std::uint64_t{1} << 32;

  PieceList pieces_;
  std::vector<std::string> selectors_;  // upper-cased, by id
  std::unordered_map<std::string, int> idOf_;
  std::vector<int> writeIds_;  // by write, -1 for a selector written the slow way
  std::vector<std::pair<std::string, int>> reversed_;  // sorted
  std::vector<std::vector<Piece*>> holders_;           // by selector id
  bool spacedEnds_ = false;
  InsertionPoint insertion_;
};

}  // namespace

std::string WriteStyleDefinitions(std::string_view text, const std::vector<StyleWrite>& writes) {
  Writer writer(text, writes);
  for (std::size_t i = 0; i < writes.size(); ++i) writer.Write(writes[i], i);
  return writer.Text();
}

}  // namespace tessarine

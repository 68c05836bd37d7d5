#include "core/Colorize.h"

#include <algorithm>
#include <cstring>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

#include "core/Styles.h"

namespace tessarine {

namespace {

// Mirrors a selection-based control: each span write is a selection plus a format, and
// the last selection made is what the control is left with if the pass stops early.
class SpanWriter {
 public:
  SpanWriter(Style* styles, Pos length, Style base, PassResult& result)
      : styles_(styles), length_(length), result_(result) {
    // An empty text may come with no array at all.
    if (length_ > 0) std::memset(styles_, base, static_cast<size_t>(length_));
    result_.lastSelStart = 0;
    result_.lastSelLength = length_;
  }
  void Write(Pos start, Pos count, Style style) {
    result_.lastSelStart = start;
    result_.lastSelLength = count;
    if (start >= length_ || count <= 0) return;
    count = std::min(count, length_ - start);
    std::memset(styles_ + start, style, static_cast<size_t>(count));
  }

 private:
  Style* styles_;
  Pos length_;
  PassResult& result_;
};

// The event-queue yield of the walk, once per chunk of text rather than per character.
class Yielder {
 public:
  explicit Yielder(const PassYield& yield) : yield_(yield) {}
  // True when the pass is to be cancelled at `pos`.
  bool Poll(Pos pos) {
    if (!yield_ || pos < next_) return false;
    next_ = (pos / kPassChunk + 1) * kPassChunk;
    return yield_(pos);
  }
  // Moves `p` to the next `c`, or to the end of the text, yielding at each chunk boundary
  // on the way, so a long stretch without markup still lets Esc through. True when the
  // pass is to be cancelled at `p`.
  bool SkipTo(std::string_view text, char c, Pos& p) {
    const Pos n = static_cast<Pos>(text.size());
    for (;;) {
      if (Poll(p)) return true;
      const Pos limit = yield_ ? std::min(n, next_) : n;
      const void* hit = std::memchr(text.data() + p, c, static_cast<size_t>(limit - p));
      if (hit) {
        p = static_cast<const char*>(hit) - text.data();
        return false;
      }
      p = limit;
      if (p == n) return Poll(n);
    }
  }

 private:
  const PassYield& yield_;
  Pos next_ = 0;
};

// The first of two characters in [p, end), or end.
const char* FindEither(const char* p, const char* end, char a, char b) {
#if defined(__SSE2__)
  const __m128i va = _mm_set1_epi8(a), vb = _mm_set1_epi8(b);
  for (; end - p >= 16; p += 16) {
    const __m128i x = _mm_loadu_si128(reinterpret_cast<const __m128i*>(p));
    const int mask = _mm_movemask_epi8(_mm_or_si128(_mm_cmpeq_epi8(x, va), _mm_cmpeq_epi8(x, vb)));
    if (mask) return p + __builtin_ctz(static_cast<unsigned>(mask));
  }
#endif
  for (; p < end; ++p)
    if (*p == a || *p == b) return p;
  return end;
}

char Upper(char c) {
  return (c >= 'a' && c <= 'z') ? static_cast<char>(c - 'a' + 'A') : c;
}

bool StartsWithUpper(std::string_view s, std::string_view prefix) {
  if (s.size() < prefix.size()) return false;
  for (size_t k = 0; k < prefix.size(); ++k)
    if (Upper(s[k]) != prefix[k]) return false;
  return true;
}

}  // namespace

PassResult ColorizeTags(std::string_view text, const ColorizeOptions& options, Style* styles,
                        const PassYield& yield) {
  const Pos n = static_cast<Pos>(text.size());
  const char* t = text.data();
  const ColorFlags& f = options.flags;
  const bool bold = options.bold;
  PassResult result;
  SpanWriter out(styles, n, MakeStyle(StyleKind::Plain, bold), result);
  Yielder yielder(yield);

  const Style commentStyle = MakeStyle(StyleKind::Comment, bold, f.CommentTagItalic);
  const Style quoteStyle = MakeStyle(StyleKind::Quote, bold);

  for (Pos p = 0; p < n; ++p) {
    // Everything outside a tag stays plain: jump to the next "<".
    if (yielder.SkipTo(text, '<', p)) {
      result.end = PassEnd::Cancelled;
      result.position = p;
      return result;
    }
    if (p == n) break;
    Pos start = p;

    // Comments first of all.
    if (f.CommentColorTags && text.substr(static_cast<size_t>(p) + 1, 3) == "!--") {
      const size_t close = text.find("-->", static_cast<size_t>(p) + 1);
      if (close != std::string_view::npos) {
        const Pos c = static_cast<Pos>(close);
        out.Write(start, c - start + 3, commentStyle);
        p = c + 2;
      }
      continue;  // unclosed: the "<" is ignored and the comment stays plain
    }

    // Table tags: loose prefix tests on the next six characters.
    StyleKind kind = StyleKind::Tag;
    if (f.TableColorTags) {
      const std::string_view s = text.substr(static_cast<size_t>(p) + 1, 6);
      if (StartsWithUpper(s, "TABLE") || (s.size() == 6 && StartsWithUpper(s, "/TABLE"))) {
        kind = StyleKind::Table;
        p += 5;
      } else {
        for (const char* prefix : {"TD", "/TD", "TH", "/TH", "TR", "/TR"}) {
          if (StartsWithUpper(s, prefix)) {
            kind = StyleKind::Table;
            break;
          }
        }
      }
    }

    // A server block is ended only by "%>". The test looks after the table jump.
    Pos closerLen = 1;
    if (f.ASPColorTags && p + 1 < n && t[p + 1] == '%') {
      kind = StyleKind::Server;
      closerLen = 2;
    }
    const Style tagStyle = MakeStyle(kind, bold);
    auto atCloser = [&](Pos x) {
      return closerLen == 1 ? t[x] == '>' : (t[x] == '%' && x + 1 < n && t[x + 1] == '>');
    };

    // Walk to the closer; only the closer's first character and quotes can matter, so
    // jump from one of those to the next.
    const char closerHead = closerLen == 1 ? '>' : '%';
    const bool quotes = f.QuoteColorTags;
    while (!atCloser(p)) {
      const char* next = quotes ? FindEither(t + p + 1, t + n, closerHead, '"')
                                : FindEither(t + p + 1, t + n, closerHead, closerHead);
      if (next == t + n) {
        // An unterminated last tag: the pass stops where it stands.
        result.end = PassEnd::Abandoned;
        result.position = n - 1;
        return result;
      }
      p = next - t;
      if (quotes && t[p] == '"') {
        const Pos quoteStart = p;
        out.Write(start, p - start + 1, tagStyle);
        ++p;
        if (p > n - 1) {
          p = n - 1;  // the value scan ends with the text
        } else if (t[p] != '"') {
          // An open quote ends at the next ">" of an ordinary tag (not the character right
          // after the quote); never under "%>".
          const char* end = closerLen == 1 ? FindEither(t + p + 1, t + n, '"', '>')
                                           : FindEither(t + p + 1, t + n, '"', '"');
          p = end == t + n ? n - 1 : end - t;
        }
        out.Write(quoteStart, p - quoteStart + 1, quoteStyle);
        start = p + 1;
      }
    }
    out.Write(start, closerLen + p - start, tagStyle);
  }
  result.position = n;
  return result;
}

PassResult ColorizeScriptComments(std::string_view text, bool bold, Style* styles,
                                  const PassYield& yield) {
  const Pos n = static_cast<Pos>(text.size());
  const char* t = text.data();
  PassResult result;
  SpanWriter out(styles, n, MakeStyle(StyleKind::Plain, bold), result);
  Yielder yielder(yield);
  const Style shebangStyle = MakeStyle(StyleKind::Plain, true);
  const Style greyStyle = MakeStyle(StyleKind::ScriptComment, bold);

  for (Pos p = 0; p < n; ++p) {
    if (yielder.SkipTo(text, '#', p)) {
      result.end = PassEnd::Cancelled;
      result.position = p;
      return result;
    }
    if (p == n) break;
    const Pos start = p;
    if (p + 1 < n && t[p + 1] == '!') {
      const size_t lf = text.find('\n', static_cast<size_t>(p) + 1);
      if (lf != std::string_view::npos) {
        const Pos e = static_cast<Pos>(lf);
        out.Write(start, e - start + 1, shebangStyle);
        p = e + 1;  // the first character of the next line is passed over
      }
      continue;
    }
    const void* lf = std::memchr(t + p, '\n', static_cast<size_t>(n - p));
    if (!lf) {
      result.end = PassEnd::Abandoned;
      result.position = n - 1;
      return result;
    }
    p = static_cast<const char*>(lf) - t;
    out.Write(start, p - start + 1, greyStyle);
  }
  result.position = n;
  return result;
}

}  // namespace tessarine

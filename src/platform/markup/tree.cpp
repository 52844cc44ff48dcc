#include "platform/markup/tree.h"

#include <tidybuffio.h>

#include <QRegularExpression>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace markup {

using namespace Qt::StringLiterals;

namespace {

// The library calls itself for each element in another, and repeats fonts that are left open in each
// paragraph.
constexpr std::uintptr_t kMostStack = 48 << 10;  // bytes: some 400 elements in each other
constexpr std::ptrdiff_t kLeastMemory = 8 << 20, kMemoryOfEachByte = 50;  // bytes

/// Gives the library memory, and a document as long as it keeps within bounds.
struct Source : TidyAllocator {
  explicit Source(const QByteArray& bytes)
      : TidyAllocator{&kMemory}, html(bytes), memory(kLeastMemory + kMemoryOfEachByte * bytes.size()) {}

  [[nodiscard]] bool isTooMuch() const {
    const std::uintptr_t here = reinterpret_cast<std::uintptr_t>(&here);
    return memory < 0 || (stack > here ? stack - here : here - stack) > kMostStack;
  }

  const QByteArray html;
  qsizetype at = 0;
  std::ptrdiff_t memory;  // that may still be asked for
  std::uintptr_t stack = 0;
  bool whole = true;

  static const TidyAllocatorVtbl kMemory;
};

/// Each block stands behind its size.
std::max_align_t* headOf(void* block) {
  return block == nullptr ? nullptr : static_cast<std::max_align_t*>(block) - 1;
}

void give(TidyAllocator* self, void* block) {
  if (block == nullptr) return;
  static_cast<Source*>(self)->memory += *reinterpret_cast<std::ptrdiff_t*>(headOf(block));
}

void* TIDY_CALL resize(TidyAllocator* self, void* block, std::size_t size) {
  auto& memory = static_cast<Source*>(self)->memory;
  give(self, block);
  memory -= static_cast<std::ptrdiff_t>(size);
  auto* head = static_cast<std::max_align_t*>(std::realloc(headOf(block), size + sizeof(std::max_align_t)));
  Q_CHECK_PTR(head);
  *reinterpret_cast<std::ptrdiff_t*>(head) = static_cast<std::ptrdiff_t>(size);
  return head + 1;
}

const TidyAllocatorVtbl Source::kMemory{
    [](TidyAllocator* self, std::size_t size) { return resize(self, nullptr, size); }, resize,
    [](TidyAllocator* self, void* block) {
      give(self, block);
      std::free(headOf(block));
    },
    [](TidyAllocator*, ctmbstr what) { qFatal("%s", what); }};

int TIDY_CALL next(void* data) {
  auto& source = *static_cast<Source*>(data);
  source.whole = source.whole && !source.isTooMuch();
  if (!source.whole || source.at == source.html.size()) return -1;
  return static_cast<unsigned char>(source.html[source.at++]);
}

void TIDY_CALL back(void* data, byte) { --static_cast<Source*>(data)->at; }

Bool TIDY_CALL isAtEnd(void* data) {
  const auto& source = *static_cast<Source*>(data);
  return !source.whole || source.at == source.html.size() ? yes : no;
}

/// The line ends between two words of a text were typed and stand for themselves; the document's own texts go
/// on further in.
QByteArray withTypedLines(const QByteArray& html) {
  constexpr int kIndent = 6;
  // Tags, and what stands in style sheets, are passed over.
  static const QRegularExpression gap(
      uR"(<(?:(?:style|script)\b[^<]*|[^>]*)(*SKIP)(*F)|(?<=[^\s>])\s*[\r\n]\s*(?=[^\s<]))"_s,
      QRegularExpression::CaseInsensitiveOption);
  const QString read = QString::fromLatin1(html);  // bytes that stay themselves
  QString made;
  qsizetype done = 0;
  for (auto gaps = gap.globalMatch(read); gaps.hasNext();) {
    const auto found = gaps.next();
    const QString lines = found.captured().replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n');
    if (lines.size() - lines.lastIndexOf(u'\n') > kIndent) continue;
    made += QStringView(read).sliced(done, found.capturedStart() - done);
    made += u"<br>"_s.repeated(lines.count(u'\n'));
    done = found.capturedEnd();
  }
  return (made + read.sliced(done)).toLatin1();
}

}  // namespace

struct Tree::Document {
  explicit Document(const QByteArray& html) : source(html), tidy(tidyCreateWithAllocator(&source)) {}
  ~Document() { tidyRelease(tidy); }
  Document(const Document&) = delete;
  Document& operator=(const Document&) = delete;

  Source source;
  TidyDoc tidy;
};

Tree::Tree(const QByteArray& html, Encoding encoding) {
  // Without a word for its language the library changes the whole program's.
  [[maybe_unused]] static const Bool english = tidySetLanguage("en");
  document_ = std::make_shared<Document>(withTypedLines(html));
  const TidyDoc tidy = document_->tidy;
  for (const TidyOptionId off : {TidyDropEmptyElems, TidyDropEmptyParas, TidyFixBackslash, TidyFixUri})
    tidyOptSetBool(tidy, off, no);
  tidyOptSetInt(tidy, TidyDuplicateAttrs, TidyKeepFirst);
  tidyOptSetValue(tidy, TidyInCharEncoding, encoding == Encoding::Utf8 ? "utf8" : "win1252");
  tidySetReportFilter(tidy, [](TidyDoc, TidyReportLevel, uint, uint, ctmbstr) { return no; });
  Source& source = document_->source;
  const std::uintptr_t here = reinterpret_cast<std::uintptr_t>(&here);
  source.stack = here;
  TidyInputSource input{};
  tidyInitSource(&input, &source, next, back, isAtEnd);
  tidyParseSource(tidy, &input);
}

bool Tree::isWhole() const { return document_->source.whole; }

TidyNode Tree::root() const { return tidyGetRoot(document_->tidy); }

QString Tree::textOf(TidyNode node) const {
  TidyBuffer text;
  tidyBufInit(&text);
  tidyNodeGetValue(document_->tidy, node, &text);
  QString read = QString::fromUtf8(reinterpret_cast<const char*>(text.bp), text.size);
  tidyBufFree(&text);
  return read;
}

std::vector<TidyNode> childrenOf(TidyNode node) {
  std::vector<TidyNode> children;
  for (TidyNode child = tidyGetChild(node); child != nullptr; child = tidyGetNext(child))
    children.push_back(child);
  return children;
}

QString attribute(TidyNode node, TidyAttrId name) {
  const TidyAttr found = tidyAttrGetById(node, name);
  return found == nullptr ? QString() : QString::fromUtf8(tidyAttrValue(found)).trimmed();
}

}  // namespace markup

#include "answers.h"

#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMap>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <algorithm>

#include "platform/files/paths.h"
#include "platform/values/line_ends.h"
#include "stage.h"

using namespace Qt::StringLiterals;

namespace road {

namespace {

QString plainCaption(const QAbstractButton* button) { return button->text().remove(u'&'); }

/// The buttons from left to right.
QList<QAbstractButton*> buttonsOf(const QDialog* box) {
  QMap<int, QAbstractButton*> byPlace;
  for (QPushButton* button : box->findChildren<QPushButton*>()) {
    if (button->isVisible()) byPlace.insert(button->mapTo(box, QPoint(0, 0)).x(), button);
  }
  return byPlace.values();
}

SeenBox look(QDialog* box) {
  SeenBox seen;
  seen.title = box->windowTitle();
  seen.icon = u"none"_s;
  for (const QAbstractButton* button : buttonsOf(box)) seen.buttons << plainCaption(button);
  if (const auto* message = qobject_cast<QMessageBox*>(box)) {
    seen.text = message->text();
    if (message->icon() == QMessageBox::Information) seen.icon = u"information"_s;
    if (message->icon() == QMessageBox::Critical) seen.icon = u"critical"_s;
  } else if (const auto* input = qobject_cast<QInputDialog*>(box)) {
    seen.text = input->labelText();
  } else if (qobject_cast<QFileDialog*>(box) != nullptr) {
    seen.text = seen.title;
  }
  return seen;
}

QString described(const SeenBox& box) {
  return u"box \"%1\" title \"%2\" icon %3 buttons \"%4\""_s.arg(
      QString(box.text).replace(u'\n', u"\\n"_s), box.title, box.icon, box.buttons.join(u", "_s));
}

/// What a step asks of a box, by the words after the text.
struct Wanted {
  QString text;
  std::optional<QString> title, icon;
  std::optional<QStringList> buttons;

  explicit Wanted(const Words& words) : text(values::withPlainLineEnds(words.first().text)) {
    for (qsizetype i = 1; i + 1 < words.size(); i += 2) {
      const QString what = words.at(i).text;
      const QString value = words.at(i + 1).text;
      if (what == u"title"_s) title = value;
      if (what == u"icon"_s) icon = value.toLower();
      if (what == u"buttons"_s) {
        QStringList captions = value.split(QRegularExpression(u"[,;/|]"_s));
        for (QString& caption : captions) caption = caption.trimmed();
        buttons = captions;
      }
      if (what != u"title"_s && what != u"icon"_s && what != u"buttons"_s) {
        throw Failure(u"title, icon or buttons"_s, what);
      }
    }
  }
  [[nodiscard]] bool fits(const SeenBox& box) const {
    const bool whole = !text.endsWith(u'…');
    return (whole ? box.text == text : box.text.startsWith(QStringView(text).chopped(1))) &&
           (!title || *title == box.title) && (!icon || *icon == box.icon) &&
           (!buttons || *buttons == box.buttons);
  }
};

}  // namespace

void Answers::note(QDialog* box) {
  if (noted_ == box) return;
  noted_ = box;
  seen_ << look(box);
}

void Answers::forgetBoxes() {
  seen_.clear();
  matched_ = 0;
}

void Answers::give(QDialog* box) {
  const Answer answer = waiting_.front();
  waiting_.pop_front();
  const bool takesFile = qobject_cast<QFileDialog*>(box) != nullptr;
  const bool takesText = takesFile || qobject_cast<QInputDialog*>(box) != nullptr;
  if (answer.typed != takesText) {
    throw Failure(answer.typed ? u"an input box"_s : u"a box with buttons"_s, described(look(box)));
  }
  if (answer.typed && answer.text) {
    clickOn(*box->findChild<QLineEdit*>());
    eraseText();
    // The toolkit's own box knows the paths of this machine.
    typeText(takesFile ? files::resolve(*answer.text) : *answer.text);
    // Where names are offered while she types, the first one takes the offer.
    for (int tries = 0; tries < 3 && box->isVisible(); ++tries) pressKey(u"Return"_s);
  } else if (answer.typed) {
    pressKey(u"Esc"_s);
  } else {
    const QList<QAbstractButton*> buttons = buttonsOf(box);
    const auto button = std::ranges::find_if(buttons, [&answer](const QAbstractButton* known) {
      return plainCaption(known).compare(*answer.text, Qt::CaseInsensitive) == 0;
    });
    if (button == buttons.end()) throw Failure(u"a button "_s + *answer.text, described(look(box)));
    clickOn(**button);
  }
}

void Answers::expect(const Words& words) {
  const Wanted wanted(words);
  for (qsizetype i = matched_; i < seen_.size(); ++i) {
    if (!wanted.fits(seen_.at(i))) continue;
    matched_ = i + 1;
    return;
  }
  QStringList found;
  for (const SeenBox& box : seen_.sliced(matched_)) found << described(box);
  QString asked;
  for (const Word& word : words) asked += word.quoted ? u" \"%1\""_s.arg(word.raw) : u' ' + word.text;
  throw Failure(u"box"_s + asked, found.isEmpty() ? u"no box"_s : found.join(u"; "_s));
}

}  // namespace road

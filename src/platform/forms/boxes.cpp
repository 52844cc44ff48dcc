#include "platform/forms/boxes.h"

#include <QApplication>
#include <QClipboard>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontMetrics>
#include <QGridLayout>
#include <QInputDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QShortcut>
#include <QSpacerItem>
#include <algorithm>
#include <utility>

#include "platform/files/contents.h"
#include "platform/files/paths.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "platform/forms/process.h"
#include "platform/values/line_ends.h"

using namespace Qt::StringLiterals;

namespace forms {

namespace {

std::function<Answer(const Box&)> boxAnswerer;
std::function<QString(const Input&)> inputAnswerer;
constexpr int kBoxMargin = 12;

int waitingNow = 0;

/// While a box is up the pointer is the ordinary one; afterwards the caller's window is active again.
class Interlude {
 public:
  Interlude() : caller_(QApplication::activeWindow()) {
    ++waitingNow;
    const QList<Form*> forms = registry::shown();
    if (caller_.isNull() && !forms.isEmpty()) caller_ = forms.last();
    if (QApplication::overrideCursor() != nullptr) {
      QApplication::setOverrideCursor(Qt::ArrowCursor);
      pointer_ = true;
    }
  }
  ~Interlude() {
    --waitingNow;
    if (pointer_) QApplication::restoreOverrideCursor();
    if (!caller_.isNull() && caller_->isVisible()) caller_->activateWindow();
  }
  Interlude(const Interlude&) = delete;
  Interlude& operator=(const Interlude&) = delete;

  [[nodiscard]] QWidget* caller() const { return caller_; }

 private:
  QPointer<QWidget> caller_;
  bool pointer_ = false;
};

/// Room for a title beside the frame's own buttons, in the bold letters that most desktops use.
int titleWidth(const QWidget& window) {
  constexpr int kFrameButtons = 140;
  QFont bold = window.font();
  bold.setBold(true);
  return std::min(QFontMetrics(bold).horizontalAdvance(window.windowTitle()) + kFrameButtons,
                  screenSize().width());
}

/// A message box takes its size from its layout alone.
void widenForTitle(QMessageBox& window) {
  auto* grid = qobject_cast<QGridLayout*>(window.layout());
  if (grid == nullptr) return;
  grid->addItem(new QSpacerItem(titleWidth(window) - 2 * kBoxMargin, 0), grid->rowCount(), 0, 1,
                grid->columnCount());
}

/// Keeps what was typed ahead from answering a question.
class TypedAhead : public QObject {
 public:
  explicit TypedAhead(QMessageBox& window) : QObject(&window), window_(window) {
    window.installEventFilter(this);
    for (QAbstractButton* button : window.buttons()) button->installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    switch (event->type()) {
      case QEvent::Show:
        if (watched == &window_) since_.start();
        return false;
      case QEvent::ShortcutOverride:
        // What is taken here comes as a key, not as a shortcut.
        event->setAccepted(isEarly());
        return isEarly();
      case QEvent::KeyPress:
        return isEarly() || isText(*static_cast<QKeyEvent*>(event));
      default:
        return false;
    }
  }

 private:
  [[nodiscard]] bool isEarly() const { return !since_.isValid() || !since_.hasExpired(kTypedAhead); }
  static bool isText(const QKeyEvent& key) {
    const bool held = (key.modifiers() & (Qt::AltModifier | Qt::ControlModifier | Qt::MetaModifier)) != 0;
    return !held && !key.text().isEmpty() && key.text().at(0).isPrint();
  }

  QMessageBox& window_;
  QElapsedTimer since_;
};

using enum QMessageBox::ButtonRole;
/// A question without Cancel can't be escaped: its buttons have no role that the Esc key finds.
constexpr struct {
  Buttons box;
  Answer answer;
  QStringView text;
  QMessageBox::ButtonRole role;
} kButtons[] = {
    {Buttons::Ok, Answer::Ok, u"&OK", AcceptRole},
    {Buttons::OkCheck, Answer::Ok, u"&OK", AcceptRole},
    {Buttons::OkCheck, Answer::Check, u"&Verificar", ActionRole},
    {Buttons::YesNo, Answer::Yes, u"&Sim", ActionRole},
    {Buttons::YesNo, Answer::No, u"&Não", ActionRole},
    {Buttons::YesNoCancel, Answer::Yes, u"&Sim", ActionRole},
    {Buttons::YesNoCancel, Answer::No, u"&Não", ActionRole},
    {Buttons::YesNoCancel, Answer::Cancel, u"&Cancelar", ActionRole},
    {Buttons::RetryCancel, Answer::Retry, u"&Repetir", AcceptRole},
    {Buttons::RetryCancel, Answer::Cancel, u"&Cancelar", RejectRole},
};

}  // namespace

Answer msgBox(const Box& box) {
  ++interruptions();
  if (boxAnswerer) return boxAnswerer(box);

  const Interlude interlude;
  QMessageBox window(interlude.caller());
  window.setTextFormat(Qt::PlainText);
  window.setText(values::withPlainLineEnds(box.text));
  window.setWindowTitle(box.title.value_or(QApplication::applicationName()));
  const bool question = box.buttons == Buttons::YesNo || box.buttons == Buttons::YesNoCancel;
  if (question) window.setIcon(QMessageBox::Question);
  if (box.icon == Icon::Information) window.setIcon(QMessageBox::Information);
  if (box.icon == Icon::Critical) window.setIcon(QMessageBox::Critical);
  // What a box says is asked for by who helps: Ctrl+C takes it whole.
  QObject::connect(new QShortcut(QKeySequence::Copy, &window), &QShortcut::activated, &window,
                   [&window] { QApplication::clipboard()->setText(window.text()); });
  QHash<QAbstractButton*, Answer> answers;
  for (const auto& button : kButtons) {
    if (button.box != box.buttons) continue;
    QPushButton* push = window.addButton(button.text.toString(), button.role);
    // Of three it is the one that changes nothing; Esc and the box's X press it too.
    const bool harmless = box.buttons == Buttons::YesNoCancel && button.answer == Answer::No;
    const bool usual = box.usual ? button.answer == box.usual : answers.isEmpty() || harmless;
    if (usual) window.setDefaultButton(push);
    if (harmless) window.setEscapeButton(push);
    answers.insert(push, button.answer);
  }
  if (question) new TypedAhead(window);
  widenForTitle(window);
  window.exec();
  return answers.value(window.clickedButton(), box.buttons <= Buttons::OkCheck ? Answer::Ok : Answer::No);
}

void askAboutHeldFiles() {
  files::setHeldFileQuestion([](const QString& path) {
    Box box;
    box.text = u"O arquivo está aberto em outro programa:\r\r%1\r\rFeche-o lá e escolha Repetir."_s.arg(path);
    box.icon = Icon::Information;
    box.buttons = Buttons::RetryCancel;
    return msgBox(box) == Answer::Retry;
  });
}

QString inputBox(const Input& input) {
  ++interruptions();
  if (inputAnswerer) return inputAnswerer(input);

  const Interlude interlude;
  QInputDialog window(interlude.caller());
  window.setInputMode(QInputDialog::TextInput);
  window.setWindowTitle(input.title);
  window.setLabelText(values::withPlainLineEnds(input.prompt));
  for (auto* label : window.findChildren<QLabel*>()) label->setTextFormat(Qt::PlainText);
  window.setTextValue(input.initial);
  window.setOkButtonText(u"&OK"_s);
  window.setCancelButtonText(u"&Cancelar"_s);
  if (window.layout() != nullptr) window.layout()->setSizeConstraint(QLayout::SetDefaultConstraint);
  window.setMinimumWidth(titleWidth(window));
  return window.exec() == QDialog::Accepted ? window.textValue() : QString();
}

QString fileBox(const QString& title, const QString& start, bool toWrite) {
  ++interruptions();
  if (inputAnswerer) return inputAnswerer({title, title, start});

  const Interlude interlude;
  const QFileInfo named(start);
  QFileDialog window(interlude.caller(), title, toWrite ? named.path() : start);
  window.setFileMode(toWrite ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
  if (toWrite) {
    window.setAcceptMode(QFileDialog::AcceptSave);
    window.selectFile(named.fileName());
    window.setDefaultSuffix(named.suffix());
  }
  window.setLabelText(QFileDialog::FileName, u"Arquivo:"_s);
  window.setLabelText(QFileDialog::FileType, u"Tipo:"_s);
  window.setLabelText(QFileDialog::LookIn, u"Pasta:"_s);
  window.setLabelText(QFileDialog::Accept, toWrite ? u"&Salvar"_s : u"&Abrir"_s);
  window.setLabelText(QFileDialog::Reject, u"&Cancelar"_s);
  return window.exec() == QDialog::Accepted ? files::ofThisMachine(window.selectedFiles().value(0))
                                            : QString();
}

void setBoxAnswerer(std::function<Answer(const Box&)> answerer) { boxAnswerer = std::move(answerer); }
void setInputAnswerer(std::function<QString(const Input&)> answerer) { inputAnswerer = std::move(answerer); }

int boxesWaiting() { return waitingNow; }

}  // namespace forms

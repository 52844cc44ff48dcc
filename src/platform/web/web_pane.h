#pragma once

#include <QByteArray>
#include <QLabel>
#include <QStringList>
#include <QWidget>
#include <optional>

// The browser control: shows a file by its path and prints it without a dialog.
namespace web {

class DocumentView;
class FindBar;

/// What became of a document that was to be printed.
enum class Printed { Sent, NoPrinter, Refused, Failed };
struct PrintReport {
  Printed result;
  QStringList missing;  ///< addresses of pictures that it was printed without
};

/// A pane that shows an HTML or PDF file, each document in a view made for it and dropped with it. What the
/// file holds is not trusted: nothing but pictures is read or fetched, the pane goes nowhere else, and a link
/// opens outside only if it is one of the web, of mail without attachments, or a picture of the picture
/// folders. Ctrl+F, or openFind(), searches; Ctrl with plus, minus and 0 zooms. Promoted in Designer files
/// (header platform/web/web_pane.h).
class WebPane : public QWidget {
  Q_OBJECT

 public:
  explicit WebPane(QWidget* parent = nullptr);

  /// Folders (as paths that the program knows) whose pictures a document may show and link to. Before
  /// navigate().
  void setPictureFolders(const QStringList& folders) { folders_ = folders; }
  /// Shows the file of a path as the program knows it (drive letters are resolved); an empty path shows an
  /// empty pane, a file that can't be read a sentence: the one given, or one that names the path. It is
  /// loaded when the pane is first visible or asked about. In the file's place `part` is shown, HTML that is
  /// a part of it.
  void navigate(const QString& path, const QString& ifMissing = {}, std::optional<QByteArray> part = {});
  /// The path last given.
  [[nodiscard]] const QString& path() const { return path_; }
  /// What stands on paper below the second page and those after it, with the page's number. Before
  /// navigate().
  void setFoot(const QString& foot) { foot_ = foot; }
  /// Whether the document can be shown; pictures of the web may still be on their way.
  bool stands();

  /// The text that the pane shows. Empty while nothing has been shown.
  [[nodiscard]] QString pageText();

  /// 1.0 is 100 %. Kept between documents.
  void setZoom(double factor);
  [[nodiscard]] double zoom() const { return zoom_; }
  void zoomIn();
  void zoomOut();
  /// Back to the zoom that shows a document's whole width, as far as it stays readable.
  void fitWidth();

  /// Opens the search line above the page.
  void openFind();
  /// Marks the next place where the text stands; an empty text takes the mark away. Whether there is one.
  bool find(const QString& text, bool backward = false);

  /// Prints the document on the system's default printer, the job named as the file is. Returns when the
  /// printing system has it.
  [[nodiscard]] PrintReport print();
  /// Addresses of pictures of the web that no server gives now.
  [[nodiscard]] QStringList missingPictures();
  /// The document as an A4 file with vectors. False when nothing is shown or it could not be written.
  bool printToFile(const QString& pdfPath);

 Q_SIGNALS:
  void zoomChanged(double factor);

 protected:
  void showEvent(QShowEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  /// The view of the document last given, made now if it wasn't; nullptr where it shows a sentence or
  /// nothing.
  DocumentView* view();
  void load();
  [[nodiscard]] DocumentView* viewOf(const QByteArray& content);
  void place(DocumentView* view);
  void say(const QString& sentence);

  FindBar* bar_;
  QLabel sentence_;  // in the document's place
  DocumentView* view_ = nullptr;
  QString path_, foot_, ifMissing_;
  QStringList folders_;
  std::optional<QByteArray> part_;
  bool pending_ = false;  // not loaded yet
  bool fit_ = true;       // nobody has set the zoom
  double zoom_ = 1.0;
};

}  // namespace web

#pragma once

#include <QString>
#include <QWidget>
#include <memory>

class QUrl;

// The browser control: shows a file by its path and prints it without a dialog.
namespace web {

/// Makes the engine fit for this machine (no sandbox as root, no GPU, Brazilian pages of its own) and lets
/// pictures be named by a path with a drive letter. Before the application object is made; once is enough.
void prepare();

/// Whether a path names a PDF file.
[[nodiscard]] bool isPdf(const QString& path);

/// What became of a page that was to be printed.
enum class Printed { Sent, NoPrinter, Failed };

/// A pane that shows an HTML or PDF file. The engine behind it is made when the first document is shown,
/// never before. A link opens in the system's own browser. Ctrl+F, or openFind(), searches the page; Ctrl
/// with plus, minus and 0 zooms. Scripts in a page don't run. Promoted in Designer files (header
/// platform/web/web_pane.h).
class WebPane : public QWidget {
  Q_OBJECT

 public:
  explicit WebPane(QWidget* parent = nullptr);
  ~WebPane() override;

  /// Shows the file of a path as the program knows it (drive letters are resolved); an empty path shows an
  /// empty page. A file that is not there gives the engine's own message page. A page wider than the pane is
  /// zoomed out until it fits, as long as nobody sets the zoom.
  void navigate(const QString& path);
  /// The path last given.
  [[nodiscard]] const QString& path() const { return path_; }
  /// Waits, with the event loop running, until the page is there. False when it failed or took longer.
  bool waitForLoad(int milliseconds = 30'000);

  /// The text that the page shows, once it has loaded. Empty while nothing has been shown.
  [[nodiscard]] QString pageText();
  /// Width of the page's content in pixels of the pane; more than the pane's own means that it scrolls
  /// sideways.
  [[nodiscard]] int contentWidth() const;

  /// 1.0 is 100 %. Kept between pages.
  void setZoom(double factor);
  [[nodiscard]] double zoom() const;
  void zoomIn();
  void zoomOut();
  /// Back to the zoom that shows the page's whole width.
  void fitWidth();

  /// Opens the search line above the page.
  void openFind();
  /// Marks the next place where the text stands; an empty text takes the mark away. Whether there is one.
  bool find(const QString& text, bool backward = false);

  /// Prints what is shown on the system's default printer, text as vectors where the printing system takes
  /// them. Returns when the printing system has it.
  [[nodiscard]] Printed print();
  /// The page as an A4 file with vectors. False when nothing is shown or it could not be written.
  bool printToFile(const QString& pdfPath);

 Q_SIGNALS:
  void loaded(bool ok);
  void zoomChanged(double factor);

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  class Private;
  void makeEngine();
  void pageLoaded(bool ok);
  void shrinkToWidth();
  void applyZoom(double factor);

  QString path_;
  std::unique_ptr<Private> d_;
};

}  // namespace web

#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QList>
#include <QString>
#include <chrono>
#include <functional>
#include <memory>
#include <optional>

class QThreadPool;

namespace files {

/// One file of this program's own that holds what it was last asked to hold. A thread of its own does all
/// that touches the disk, so that a slow one holds nobody up; a disk that takes nothing is reported once on
/// standard error. The file is whole or not at all and its user's alone to read. It lies in a folder with
/// those of other running programs, locked as long as its program runs, however that ends.
class KeptFile {
 public:
  /// `ending` with its point, such as ".rascunho". Nothing is made before something is kept.
  KeptFile(const QString& folder, const QString& ending);
  /// Waits a little for the disk.
  ~KeptFile();
  KeptFile(const KeptFile&) = delete;
  KeptFile& operator=(const KeptFile&) = delete;

  /// From here on the file shall hold this, whole lines. Of contents that wait for the disk the last one
  /// counts.
  void keep(const QByteArray& content) { want(content); }
  /// From here on there shall be no file.
  void drop() { want(std::nullopt); }
  /// Waits until the disk has done what was asked for; whether it has, in time and without a fault.
  [[nodiscard]] bool settle(std::chrono::milliseconds patience);

  /// A file whose program is gone.
  struct Left {
    QString path;
    QDateTime written;
    QByteArray content;  ///< empty where the file is not whole
    bool whole = false;
    bool operator==(const Left&) const = default;
  };
  /// Looks for them and sweeps up what killed programs left half made; `found` is called in the other thread.
  /// What bears no name that this class gives is neither found nor touched.
  void look(const std::function<void(const QList<Left>&)>& found);
  /// Makes one this program's own file in place of the present one; nullopt when it is gone, another program
  /// has it, or the disk takes too long.
  [[nodiscard]] std::optional<Left> take(const QString& path, std::chrono::milliseconds patience);
  /// Leaves the own file to others, as it is.
  void giveBack();

 private:
  class Keeper;
  void want(std::optional<QByteArray> content);
  void post(const std::function<void(Keeper&)>& job);

  std::shared_ptr<Keeper> keeper_;
  std::unique_ptr<QThreadPool> disk_;  ///< one thread
};

}  // namespace files

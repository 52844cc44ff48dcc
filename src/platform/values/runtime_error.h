#pragma once

#include <QString>
#include <exception>

namespace values {

/// All error numbers of the runtime that the program raises, and that its users know.
enum ErrorNumber : int {
  kOverflow = 6,
  kOutOfMemory = 7,
  kDivisionByZero = 11,
  kTypeMismatch = 13,
  kBadFileName = 52,
  kFileNotFound = 53,
  kDiskFull = 61,
  kPermissionDenied = 70,
  kPathFileAccess = 75,
  kPathNotFound = 76,
  kObjectNotSet = 91,
  kInvalidNull = 94,
  kInvalidPicture = 481,
  kPrinterError = 482,
  kNoCurrentRecord = 3021,
  kUnknownField = 3265,
  kClosedObject = 3704,
  kPictureNotFound = 5152,  // of the word processor
  kNoSuchMember = 5941,
  kMailFailed = -2147221503,
  kStatementFailed = -2147217900,
  kConnectionFailed = -2147467259,
};

/// The one exception of the program. Nothing catches it except the routines that are meant to and the edge of
/// the event loop (forms::guarded), which shows the runtime's error box and ends the process.
class RuntimeError : public std::exception {
 public:
  RuntimeError(int number, QString text, QString statement = {});
  [[nodiscard]] int number() const { return number_; }
  /// What the error box shows, in Portuguese; for a failing statement the database's own words.
  [[nodiscard]] const QString& text() const { return text_; }
  /// The statement that failed, for who looks into it; empty where none did.
  [[nodiscard]] const QString& statement() const { return statement_; }
  [[nodiscard]] const char* what() const noexcept override { return utf8_.constData(); }

 private:
  int number_;
  QString text_, statement_;
  QByteArray utf8_;
};

/// The user has given up what she was asked about. Its handler goes no further and the screen that it was
/// called from stays (forms::guarded); a form that was being loaded is dropped.
struct Cancelled {};

/// The runtime's own text for a number, in Portuguese ("Tipos incompatíveis" for 13).
[[nodiscard]] QString standardText(int number);

/// Raises the error with its standard text, or with a detail after it ("Arquivo não encontrado: x").
[[noreturn]] void raise(int number, const QString& detail = {});

}  // namespace values

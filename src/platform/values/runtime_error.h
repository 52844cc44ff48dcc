#pragma once

#include <QString>
#include <exception>
#include <utility>

namespace values {

/// An error of the runtime that the program raises: the number by which its users know it, and its text.
struct ErrorKind {
  int number;
  QStringView text;
  constexpr operator int() const { return number; }
};

inline constexpr ErrorKind kOverflow{6, u"Estouro"};
inline constexpr ErrorKind kOutOfMemory{7, u"Memória insuficiente"};
inline constexpr ErrorKind kDivisionByZero{11, u"Divisão por zero"};
inline constexpr ErrorKind kTypeMismatch{13, u"Tipos incompatíveis"};
inline constexpr ErrorKind kBadFileName{52, u"Nome ou número de arquivo inválido"};
inline constexpr ErrorKind kFileNotFound{53, u"Arquivo não encontrado"};
inline constexpr ErrorKind kDiskFull{61, u"Disco cheio"};
inline constexpr ErrorKind kPermissionDenied{70, u"Permissão negada"};
inline constexpr ErrorKind kPathFileAccess{75, u"Erro de acesso a caminho/arquivo"};
inline constexpr ErrorKind kPathNotFound{76, u"Caminho não encontrado"};
inline constexpr ErrorKind kInvalidNull{94, u"Uso inválido de Null"};
inline constexpr ErrorKind kInvalidPicture{481, u"Imagem inválida"};
inline constexpr ErrorKind kPrinterError{482, u"Erro de impressora"};
inline constexpr ErrorKind kNoCurrentRecord{
    3021, u"Não há registro atual: o resultado está vazio ou chegou ao fim"};
inline constexpr ErrorKind kUnknownField{3265, u"Item não encontrado na coleção"};
inline constexpr ErrorKind kClosedObject{3704, u"Operação não permitida quando o objeto está fechado"};
inline constexpr ErrorKind kPictureNotFound{5152, u"Arquivo de imagem não encontrado"};
inline constexpr ErrorKind kMailFailed{-2147221503, u"O e-mail não foi enviado"};
inline constexpr ErrorKind kStatementFailed{-2147217900, u"O banco de dados recusou o comando"};
inline constexpr ErrorKind kConnectionFailed{-2147467259,
                                             u"Falha de conexão com o servidor de banco de dados"};

/// The one exception of the program. Nothing catches it except the routines that are meant to and the edge of
/// the event loop (forms::guarded), which shows the runtime's error box and ends the process.
class RuntimeError : public std::exception {
 public:
  RuntimeError(int number, QString text, QString statement = {})
      : number_(number), text_(std::move(text)), statement_(std::move(statement)), utf8_(text_.toUtf8()) {}
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

/// Raises the error with its own text, or with a detail after it ("Arquivo não encontrado: x").
[[noreturn]] inline void raise(const ErrorKind& kind, const QString& detail = {}) {
  const QString text = kind.text.toString();
  throw RuntimeError(kind, detail.isEmpty() ? text : text + QStringLiteral(": ") + detail);
}

}  // namespace values

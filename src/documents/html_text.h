#pragma once

#include <QString>
#include <QStringList>

// How the texts of the documents are put together and written.
namespace html {

/// Line end of the documents.
inline const QString kFim = QStringLiteral("\r\n");

/// A fixed text, its line feeds as CR LF.
[[nodiscard]] QString fixo(QStringView texto);

/// Inline style of the unstyled documents: "FONT-SIZE: 8pt; FONT-FAMILY: TAHOMA; …; font-weight:normal".
[[nodiscard]] QString estilo(int pontos, bool negrito);

/// Data as text between tags: what HTML reads as its own signs stays what the user typed.
[[nodiscard]] QString escapado(const QString& dado);
/// The same inside the single quotes of an attribute.
[[nodiscard]] QString atributo(const QString& dado);

/// The parts that aren't empty, with " - " between them.
[[nodiscard]] QString juntos(QStringList partes);

/// A titled box of lines, under a comment. Title and lines are plain text.
struct Quadro {
  QString comentario;
  QString titulo;
  QStringList linhas;
  int borda = 1;
  bool linhaAberta = false;      ///< ends on a row that is opened and left so
  bool primeiraNegrita = false;  ///< the first line stands out
};
/// With inline styles.
[[nodiscard]] QString quadro(const Quadro& quadro);
/// With the classes of the style sheet.
[[nodiscard]] QString quadroEstilos(const Quadro& quadro, const QString& classeTitulo,
                                    const QString& classeLinha);

/// Data as text, "&nbsp" where it is empty.
[[nodiscard]] QString ouBranco(const QString& dado);

/// Appends a text and a line end to a document, in the encoding that its head declares.
void acrescenta(const QString& caminho, const QString& texto);

/// A document in the making: a file of its own beside the document, which takes its name when it is whole, so
/// that several programs can write one document. Nothing is left of one that was not finished; what a killed
/// program left goes an hour later with the next one.
class Iniciado {
 public:
  explicit Iniciado(const QString& caminho);
  ~Iniciado();
  Iniciado(const Iniciado&) = delete;
  Iniciado& operator=(const Iniciado&) = delete;
  /// Where the blocks are appended.
  [[nodiscard]] const QString& parte() const { return parte_; }
  void pronto();

 private:
  QString caminho_, parte_;
};

}  // namespace html

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

/// A titled box of lines, under a comment.
struct Quadro {
  const char16_t* comentario;
  QString titulo;
  QStringList linhas;
  int borda = 1;
  bool linhaAberta = false;  ///< ends on a row that is opened and left so
};
/// With inline styles.
[[nodiscard]] QString quadro(const Quadro& quadro);
/// With the classes of the style sheet.
[[nodiscard]] QString quadroEstilos(const Quadro& quadro, const QString& classeTitulo,
                                    const QString& classeLinha);

/// "&nbsp" for an empty text.
[[nodiscard]] QString ouBranco(const QString& texto);

/// Appends a text and a line end to a document, in the encoding that its head declares.
void acrescenta(const QString& caminho, const QString& texto);

/// Removes a document that was begun and not finished, unless it was there before.
class Iniciado {
 public:
  explicit Iniciado(const QString& caminho);
  ~Iniciado();
  Iniciado(const Iniciado&) = delete;
  Iniciado& operator=(const Iniciado&) = delete;
  void pronto() { pronto_ = true; }

 private:
  QString caminho_;
  bool pronto_;
};

}  // namespace html

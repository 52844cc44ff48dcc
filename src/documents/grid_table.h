#pragma once

#include <QString>
#include <vector>

// The bordered table of 800 pixels that the grid documents are made of.
namespace grade {

/// Its opening line.
[[nodiscard]] QString abre();
/// The same under the comment of an item table.
[[nodiscard]] QString abreDetalhes();
[[nodiscard]] QString fecha();

struct Celula {
  QString largura;  ///< "30%"
  QString html;
  const char16_t* alinhamento = u"left";
  QString atributos = {};  ///< "colspan='2'"
};
[[nodiscard]] QString linha(const std::vector<Celula>& celulas);

/// A bold label, its value after it, both plain text.
[[nodiscard]] Celula rotulada(const QString& largura, const QString& rotulo, const QString& valor,
                              const char16_t* alinhamento = u"left");
/// Plain text.
[[nodiscard]] Celula dado(const QString& largura, const QString& texto,
                          const char16_t* alinhamento = u"left");
/// The same, "&nbsp" where it is empty.
[[nodiscard]] Celula dadoOuBranco(const QString& largura, const QString& texto,
                                  const char16_t* alinhamento = u"left");
/// Title of a column, on grey.
[[nodiscard]] Celula titulo(const QString& largura, const QString& texto,
                            const char16_t* alinhamento = u"left");

}  // namespace grade

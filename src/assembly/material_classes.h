#pragma once

#include <QString>
#include <array>

/// The seven classes of material, in the order of the assembly screen's tabs: class text on a line, sort
/// number.
struct ClasseDeMaterial {
  const char16_t* texto;  ///< TIPO_MATE_PRIMA
  const char16_t* ordem;  ///< ORDEM_MATE_PRIMA, "1" to "7"
};

inline constexpr std::array<ClasseDeMaterial, 7> kClassesDeMaterial{{
    {u"PRODUTO", u"1"},
    {u"CONTEÚDO COMESTÍVEL", u"2"},
    {u"CONTEÚDO NÃO COMESTÍVEL", u"3"},
    {u"FECHAMENTO", u"4"},
    {u"CARD", u"5"},
    {u"ADEREÇO", u"6"},
    {u"OUTROS", u"7"},
}};

/// The class of a line that is a product by itself.
inline constexpr QStringView kTipoProduto(kClassesDeMaterial.front().texto);

/// Sort number of a class text, "8" for any other.
[[nodiscard]] inline QString ordemDoTipo(QStringView texto) {
  for (const auto& uma : kClassesDeMaterial)
    if (texto == QStringView(uma.texto)) return QString::fromUtf16(uma.ordem);
  return QStringLiteral("8");
}

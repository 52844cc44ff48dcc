#pragma once

#include <QString>
#include <array>

/// The seven classes of material, in the order of the assembly screen's tabs: class text on a line, sort
/// number.
struct MaterialClass {
  const char16_t* text;   ///< TIPO_MATE_PRIMA
  const char16_t* order;  ///< ORDEM_MATE_PRIMA, "1" to "7"
};

inline constexpr std::array<MaterialClass, 7> kMaterialClasses{{
    {u"PRODUTO", u"1"},
    {u"CONTEÚDO COMESTÍVEL", u"2"},
    {u"CONTEÚDO NÃO COMESTÍVEL", u"3"},
    {u"FECHAMENTO", u"4"},
    {u"CARD", u"5"},
    {u"ADEREÇO", u"6"},
    {u"OUTROS", u"7"},
}};

/// The class of a line that is a product by itself.
inline constexpr QStringView kTipoProduto(kMaterialClasses.front().text);

/// Sort number of a class text, "8" for any other.
[[nodiscard]] inline QString OrdemDoTipo(QStringView text) {
  for (const auto& one : kMaterialClasses)
    if (text == QStringView(one.text)) return QString::fromUtf16(one.order);
  return QStringLiteral("8");
}

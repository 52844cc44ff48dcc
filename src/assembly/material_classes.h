#pragma once

#include <QString>
#include <array>

/// The seven classes of material: tab of the assembly screen, class text on a line, sort number.
struct MaterialClass {
  const char16_t* tab;    ///< caption of the tab
  const char16_t* text;   ///< TIPO_MATE_PRIMA
  const char16_t* order;  ///< ORDEM_MATE_PRIMA, "1" to "7"
};

inline constexpr std::array<MaterialClass, 7> kMaterialClasses{{
    {u"1-Produtos", u"PRODUTO", u"1"},
    {u"2-Cont. Comestível", u"CONTEÚDO COMESTÍVEL", u"2"},
    {u"3-Cont.Não Comest.", u"CONTEÚDO NÃO COMESTÍVEL", u"3"},
    {u"4-Fechamento", u"FECHAMENTO", u"4"},
    {u"5-Card", u"CARD", u"5"},
    {u"6-Adereço", u"ADEREÇO", u"6"},
    {u"7-Outros", u"OUTROS", u"7"},
}};

/// Sort number of a class text, "8" for any other.
[[nodiscard]] inline QString OrdemDoTipo(QStringView text) {
  for (const auto& one : kMaterialClasses)
    if (text == QStringView(one.text)) return QString::fromUtf16(one.order);
  return QStringLiteral("8");
}

#pragma once

#include <QString>
#include <array>

/// A class of material: its text on a line, its sort number.
struct ClasseDeMaterial {
  QStringView texto;  ///< TIPO_MATE_PRIMA
  QStringView ordem;  ///< ORDEM_MATE_PRIMA
};

/// One for each tab of the assembly screen, in their order.
inline constexpr auto kClassesDeMaterial = std::to_array<ClasseDeMaterial>({
    {u"PRODUTO", u"1"},
    {u"CONTEÚDO COMESTÍVEL", u"2"},
    {u"CONTEÚDO NÃO COMESTÍVEL", u"3"},
    {u"FECHAMENTO", u"4"},
    {u"CARD", u"5"},
    {u"ADEREÇO", u"6"},
    {u"OUTROS", u"7"},
});

[[nodiscard]] inline const ClasseDeMaterial& classeDaAba(int aba) {
  return kClassesDeMaterial.at(static_cast<std::size_t>(aba));
}

/// The class of a line that is a product by itself.
inline constexpr QStringView kTipoProduto = kClassesDeMaterial.front().texto;

/// Sort number of a class text, "8" for any other.
[[nodiscard]] inline QString ordemDoTipo(QStringView texto) {
  for (const auto& uma : kClassesDeMaterial)
    if (texto == uma.texto) return uma.ordem.toString();
  return QStringLiteral("8");
}

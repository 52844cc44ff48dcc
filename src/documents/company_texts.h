#pragma once

#include <array>

// Fixed texts of the house that HTML and word-processor documents share.
namespace empresa {

inline constexpr char16_t kNome[] = u"Marta L. Tavora Produtos Personalizados";
inline constexpr char16_t kMarca[] = u"Marta Tavora Prestige";
inline constexpr char16_t kEndereco[] = u"Rua das Acácias, 100 - Jardim Aurora";
inline constexpr char16_t kCidade[] = u"São Paulo - CEP 01000-000";
inline constexpr char16_t kFoneFax[] = u"Fone/Fax: (11) 3000-0000";
/// Site and e-mail of the letterheads, where the installation names none.
inline constexpr char16_t kSite[] = u"www.martatavora.example";
inline constexpr char16_t kEmail[] = u"contato@martatavora.example";
inline constexpr char16_t kLogoFixo[] = u"logomartatavora283x127.jpg";
inline constexpr char16_t kLogoCliente[] = u"logo_cliente.jpg";

inline constexpr char16_t kValidade[] = u"10 dias";
inline constexpr char16_t kBanco[] = u"Banco Alfa - Ag 0001 - C/C 00000-00";
inline constexpr char16_t kDepartamento[] = u"Departamento Comercial";

/// Where the customer signs.
inline constexpr std::array<const char16_t*, 3> kAssinatura{
    u"___________________________", u"Assinatura do responsável e", u"carimbo da empresa"};

/// The observations of a quote, as plain text.
inline constexpr std::array<const char16_t*, 7> kClausulas{
    u"1 - Todos os valores são expressos em moeda corrente nacional (Real);",
    u"2 - Após a aprovação do pedido, quaisquer modificações solicitadas pelo contratante terão valores "
    u"acrescidos de acordo com as alterações;",
    u"3 - O transporte das mercadorias para fora dos limites da Grande São Paulo ocorrerá por conta do "
    u"contratante, que assumirá todas e quaisquer responsabilidades decorrentes do mesmo. Neste caso, as "
    u"eventuais avarias serão de inteira responsabilidade da transportadora contratada;",
    u"4 - As reclamações referentes à entrega das mercadorias, respeitando-se as condições do item '3', "
    u"poderão ser feitas até cinco dias após o seu recebimento;",
    u"5 - Toda matéria-prima utilizada nos protótipos são apenas amostras, produtos armazenados em nosso "
    u"estoque, e por isso não apresentam 100% de qualidade. Após a aprovação do pedido, as peças serão "
    u"fabricadas com os critérios de qualidade da Marta Tavora Prestige. Os protótipos deverão retornar a "
    u"Marta Tavora Prestige 24 horas após a sua apresentação, e os mesmos só permanecerão em poder do "
    u"contratante após o fechamento do pedido para definição de detalhes;",
    u"6 - Fica vedada a comercialização e reprodução total ou parcial dos protótipos, cabendo punições "
    u"previstas por lei.",
    u"7 - Todas as peças serão etiquetadas com logomarca Marta Tavora Prestige.",
};

}  // namespace empresa

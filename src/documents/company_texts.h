#pragma once

#include <QStringList>

// Fixed texts of the house that HTML and word-processor documents share.
namespace empresa {

using namespace Qt::StringLiterals;

inline const QString kNome = u"Marta L. Tavora Produtos Personalizados"_s;
inline const QString kMarca = u"Marta Tavora Prestige"_s;
inline const QString kEndereco = u"Rua das Acácias, 100 - Jardim Aurora"_s;
inline const QString kCidade = u"São Paulo - CEP 01000-000"_s;
inline const QString kFoneFax = u"Fone/Fax: (11) 3000-0000"_s;
/// Site and e-mail of the letterheads, where the installation names none.
inline const QString kSite = u"www.martatavora.example"_s;
inline const QString kEmail = u"contato@martatavora.example"_s;
inline const QString kLogoFixo = u"logomartatavora283x127.jpg"_s;
inline const QString kLogoCliente = u"logo_cliente.jpg"_s;

inline const QString kValidade = u"10 dias"_s;
inline const QString kBanco = u"Banco Alfa - Ag 0001 - C/C 00000-00"_s;
inline const QString kDepartamento = u"Departamento Comercial"_s;

/// Where the customer signs.
inline const QStringList kAssinatura{u"___________________________"_s, u"Assinatura do responsável e"_s,
                                     u"carimbo da empresa"_s};

/// The observations of a quote, as plain text.
inline const QStringList kClausulas{
    u"1 - Todos os valores são expressos em moeda corrente nacional (Real);"_s,
    u"2 - Após a aprovação do pedido, quaisquer modificações solicitadas pelo contratante terão valores "
    u"acrescidos de acordo com as alterações;"_s,
    u"3 - O transporte das mercadorias para fora dos limites da Grande São Paulo ocorrerá por conta do "
    u"contratante, que assumirá todas e quaisquer responsabilidades decorrentes do mesmo. Neste caso, as "
    u"eventuais avarias serão de inteira responsabilidade da transportadora contratada;"_s,
    u"4 - As reclamações referentes à entrega das mercadorias, respeitando-se as condições do item '3', "
    u"poderão ser feitas até cinco dias após o seu recebimento;"_s,
    u"5 - Toda matéria-prima utilizada nos protótipos são apenas amostras, produtos armazenados em nosso "
    u"estoque, e por isso não apresentam 100% de qualidade. Após a aprovação do pedido, as peças serão "
    u"fabricadas com os critérios de qualidade da Marta Tavora Prestige. Os protótipos deverão retornar a "
    u"Marta Tavora Prestige 24 horas após a sua apresentação, e os mesmos só permanecerão em poder do "
    u"contratante após o fechamento do pedido para definição de detalhes;"_s,
    u"6 - Fica vedada a comercialização e reprodução total ou parcial dos protótipos, cabendo punições "
    u"previstas por lei."_s,
    u"7 - Todas as peças serão etiquetadas com logomarca Marta Tavora Prestige."_s,
};

}  // namespace empresa

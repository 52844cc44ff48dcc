#pragma once

#include <array>

#include "documents/company_texts.h"

// General conditions of quotes and orders; a clause that reads as in the observations stands there.
namespace clausulas {

inline constexpr std::array<const char16_t*, 6> kOrcamento{
    empresa::kClausulas[0],
    u"2 - Após a aprovação do pedido, quaisquer modificações solicitadas pelo contratante, terão valores "
    u"acrescidos de acordo com as alterações;",
    u"3 - O transporte das mercadorias para fora dos limites da Grande São Paulo, correrá por conta do "
    u"contratante, que assumirá todas e quaisquer responsabilidades decorrentes do mesmo. Neste caso, as "
    u"eventuais avarias serão de inteira responsabilidade da transportadora contratada;",
    empresa::kClausulas[3],
    u"5 - Toda matéria-prima utilizada nos protótipos são apenas amostras, produtos armazenados em nosso "
    u"estoque, e por isso não apresentam 100% de qualidade. Após a aprovação do pedido, as peças serão "
    u"fabricadas com os critérios de qualidade da Casa Lumiar. Os protótipos deverão retornar a Casa "
    u"Lumiar 24 horas após a sua apresentação, e os mesmos só permanecerão em poder do contratante após o "
    u"fechamento do pedido para definição de detalhes;",
    empresa::kClausulas[5],
};

inline constexpr std::array<const char16_t*, 7> kPedido{
    kOrcamento[0],
    kOrcamento[1],
    kOrcamento[2],
    kOrcamento[3],
    kOrcamento[4],
    u"6 - Fica acordado entre as partes que a forma de pagamento será 50% no fechamento do pedido e 50% a "
    u"combinar. Em caso de cancelamento do pedido após o primeiro pagamento não haverá devolução dos "
    u"valores pagos. Na falta de pagamento, a Casa Lumiar encaminhará a cobrança via cartório;",
    u"7 - Fica vedada a comercialização e reprodução total ou parcial dos protótipos, cabendo punições "
    u"previstas por lei.",
};

/// Orders of imported goods.
inline constexpr std::array<const char16_t*, 6> kPedidoImportados{
    u"1 - Data prevista para entrega depende de cada produto e suas devidas previsões de disponibilidades "
    u"acima citadas;",
    u"2 - Todos os valores são expressos em moeda corrente nacional (Real);",
    u"3 - As reclamações ref. a entrega das mercadorias deverão ser feitas em até 5 (cinco) dias após o "
    u"seu recebimento;",
    u"4 - O comprador declara estar ciente de que as mercadorias pertinentes ao presente pedido são "
    u"importadas e precisam ser encomendadas pelo vendedor antecipadamente. Sendo assim, como não é "
    u"exigido sinal como princípio de pagamento, não será permitido o cancelamento mesmo que parcial de "
    u"pedido, a não ser por expresso consentimento da Vereda Arte;",
    u"5 - Por se tratar de produtos importados, o prazo de entrega do pedido é estimado. Assim sendo, uma "
    u"variação de até 30 (trinta) dias para mais ou para menos, deverá ser considerada normal;",
    u"6 - No caso de entrega parcial, o prazo de pagamento será revisto.",
};

}  // namespace clausulas

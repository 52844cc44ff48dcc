#pragma once

#include "documents/company_texts.h"

// General conditions of quotes and orders; a clause that reads as in the observations stands there.
namespace clausulas {

using namespace Qt::StringLiterals;

inline const QStringList kOrcamento{
    empresa::kClausulas[0],
    u"2 - Após a aprovação do pedido, quaisquer modificações solicitadas pelo contratante, terão valores "
    u"acrescidos de acordo com as alterações;"_s,
    u"3 - O transporte das mercadorias para fora dos limites da Grande São Paulo, correrá por conta do "
    u"contratante, que assumirá todas e quaisquer responsabilidades decorrentes do mesmo. Neste caso, as "
    u"eventuais avarias serão de inteira responsabilidade da transportadora contratada;"_s,
    empresa::kClausulas[3],
    u"5 - Toda matéria-prima utilizada nos protótipos são apenas amostras, produtos armazenados em nosso "
    u"estoque, e por isso não apresentam 100% de qualidade. Após a aprovação do pedido, as peças serão "
    u"fabricadas com os critérios de qualidade da Casa Lumiar. Os protótipos deverão retornar a Casa "
    u"Lumiar 24 horas após a sua apresentação, e os mesmos só permanecerão em poder do contratante após o "
    u"fechamento do pedido para definição de detalhes;"_s,
    empresa::kClausulas[5],
};

inline const QStringList kPedido =
    kOrcamento.first(5)
    << u"6 - Fica acordado entre as partes que a forma de pagamento será 50% no fechamento do pedido e 50% a "
       u"combinar. Em caso de cancelamento do pedido após o primeiro pagamento não haverá devolução dos "
       u"valores pagos. Na falta de pagamento, a Casa Lumiar encaminhará a cobrança via cartório;"_s
    << u"7 - Fica vedada a comercialização e reprodução total ou parcial dos protótipos, cabendo punições "
       u"previstas por lei."_s;

/// Orders of imported goods.
inline const QStringList kPedidoImportados{
    u"1 - Data prevista para entrega depende de cada produto e suas devidas previsões de disponibilidades "
    u"acima citadas;"_s,
    u"2 - Todos os valores são expressos em moeda corrente nacional (Real);"_s,
    u"3 - As reclamações ref. a entrega das mercadorias deverão ser feitas em até 5 (cinco) dias após o "
    u"seu recebimento;"_s,
    u"4 - O comprador declara estar ciente de que as mercadorias pertinentes ao presente pedido são "
    u"importadas e precisam ser encomendadas pelo vendedor antecipadamente. Sendo assim, como não é "
    u"exigido sinal como princípio de pagamento, não será permitido o cancelamento mesmo que parcial de "
    u"pedido, a não ser por expresso consentimento da Vereda Arte;"_s,
    u"5 - Por se tratar de produtos importados, o prazo de entrega do pedido é estimado. Assim sendo, uma "
    u"variação de até 30 (trinta) dias para mais ou para menos, deverá ser considerada normal;"_s,
    u"6 - No caso de entrega parcial, o prazo de pagamento será revisto."_s,
};

}  // namespace clausulas

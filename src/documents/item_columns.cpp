#include "documents/item_columns.h"

namespace coluna {

QString codigo(const ItemImpresso& item) { return item.artigo.codigo; }
QString descricao(const ItemImpresso& item) { return item.artigo.descricao; }
QString observacao(const ItemImpresso& item) { return item.rs.text(u"OBSE_PROP_CMRC_DETA"); }
QString quantidade(const ItemImpresso& item) { return item.rs.format(u"QTDE", item.artigo.unidade.mascara); }
QString valorUnitario(const ItemImpresso& item) { return dinheiro(item.rs, u"VALO_LIQU"); }
QString valorTotal(const ItemImpresso& item) { return dinheiro(item.rs, u"VALO_TOTA"); }

}  // namespace coluna

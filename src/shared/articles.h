#pragma once

#include <QString>

#include "shared/lookups.h"

// What screens and documents show of an article, asked together.

/// A unit's name and the mask of its quantities.
struct UnidadeDeMedida {
  QString nome, mascara;
};
Asked<UnidadeDeMedida> unidadeDeMedida(QString idunid);

struct Artigo {
  QString codigo, descricao;
  UnidadeDeMedida unidade;
};
Asked<Artigo> artigoDoProduto(QString idprod);
Asked<Artigo> artigoDoPrototipo(QString idprot);
/// One whose parts are asked already.
Asked<Artigo> artigoDe(Asked<QString> codigo, Asked<QString> descricao, Asked<QString> idunid);

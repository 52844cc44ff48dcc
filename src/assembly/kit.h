#pragma once

#include <QString>

#include "platform/forms/grid_model.h"

/// Adds the components of a product's kit (prod_kit0) to a grid, sorted by code: id, code, description, unit,
/// quantity in the decimals of the unit, in the first five columns. Without a code nothing happens.
void carregaKit(forms::GridModel& grade, const QString& codigo);

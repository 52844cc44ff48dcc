#pragma once

#include <QDate>
#include <QString>

/// How the validity of an open quote stands on a day.
struct Prazo {
  enum Estado { SemPressa, Vence, Vencido } estado = SemPressa;
  /// "vencido em 05/12", "vence hoje", "vence em 3 dias" up to a week; else empty.
  QString texto;
};

/// Of a validity "dd/mm/yyyy"; what is no date is never due.
[[nodiscard]] Prazo prazoDaValidade(const QString& validade, QDate hoje);

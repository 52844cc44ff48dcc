#pragma once

#include <QString>

/// A text as a numeric column takes it, in quotes: with a point for the comma where it is a number, null
/// where it is empty, any other as what the numeric reading makes of it ("10 un" is 10).
[[nodiscard]] QString numeroSql(const QString& texto);

/// Builds an INSERT: the column list and the value list grow side by side. Every value goes in single quotes,
/// as it stands.
class Insercao {
 public:
  explicit Insercao(const QString& tabela);

  Insercao& campo(QStringView coluna, const QString& valor);
  /// A numeric column (numeroSql).
  Insercao& numero(QStringView coluna, const QString& texto);
  /// A column that is left out when the condition does not hold.
  Insercao& campoSe(bool condicao, QStringView coluna, const QString& valor);
  [[nodiscard]] QString texto() const;

 private:
  Insercao& inclui(QStringView coluna, const QString& sql);

  QString colunas_;
  QString valores_;
  QString separador_;
};

/// Builds an UPDATE.
class Alteracao {
 public:
  explicit Alteracao(const QString& tabela);

  Alteracao& campo(QStringView coluna, const QString& valor);
  /// null when the condition does not hold.
  Alteracao& campoOuNull(bool condicao, QStringView coluna, const QString& valor);
  [[nodiscard]] QString texto(const QString& onde) const;

 private:
  QString texto_;
  QString separador_;
};

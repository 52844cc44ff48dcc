#pragma once

#include <QString>

/// Builds an INSERT: the column list and the value list grow side by side. Every value goes in single quotes,
/// as it stands.
class Insercao {
 public:
  explicit Insercao(const QString& tabela);

  Insercao& campo(QStringView coluna, const QString& valor);
  /// A column that is left out when the condition does not hold.
  Insercao& campoSe(bool condicao, QStringView coluna, const QString& valor);
  [[nodiscard]] QString texto() const;

 private:
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

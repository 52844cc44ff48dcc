#pragma once

#include <QString>
#include <QStringList>

// The customer of a quote or an order, as its lines in a document.

struct Parte {
  QString nome, endereco, cidade, uf, cep, inscricao, documento, bairro;
  /// "São Paulo - SP - 01000-000", without what is empty.
  [[nodiscard]] QString localidade() const;
};
/// Name and address of a customer.
[[nodiscard]] Parte leParte(const QString& idclie);

/// Plain text: name, phone, e-mail, address with district, documents.
[[nodiscard]] QStringList linhasDaParte(const Parte& parte, const QString& fone, const QString& email);

[[nodiscard]] QString quadroCliente(const QStringList& linhas);
[[nodiscard]] QString quadroClienteEstilos(const QStringList& linhas);

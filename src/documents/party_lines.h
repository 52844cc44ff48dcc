#pragma once

#include <QString>
#include <QStringList>

// The customer of a quote or an order, as its lines in a document.

struct Parte {
  QString nome, endereco, cidade, uf, cep, inscricao, documento, bairro;
  /// "São Paulo - SP - 01000-000", without what is empty.
  [[nodiscard]] QString Localidade() const;
};
/// Name and address of a customer.
[[nodiscard]] Parte LeParte(const QString& idclie);

/// Plain text: name, phone, e-mail, address with district, documents.
[[nodiscard]] QStringList LinhasDaParte(const Parte& parte, const QString& fone, const QString& email);

[[nodiscard]] QString QuadroCliente(const QStringList& linhas);
[[nodiscard]] QString QuadroClienteEstilos(const QStringList& linhas);

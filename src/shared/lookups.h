#pragma once

#include <QString>

#include "platform/data/recordset.h"

// What the screens need to know about a single row: an id from a name, a name from an id, one column of one
// row. Each call runs its own statement, in upper case; nothing is kept between calls. The result is the
// column of the first row, or an empty text when there is no row or the column is null. Names are compared
// exactly but for case. Ids that a statement does not quote go out as numbers: an empty key as 0, which finds
// nothing.

/// Reads a result: the whole statement in upper case, as all reads of the program go out.
[[nodiscard]] data::Recordset AbreConsulta(const QString& sql);

/// User name; a lost connection (-2147467259) is told and ends the program, any other error is ignored and
/// gives `atual`.
[[nodiscard]] QString NomeUsuario(const QString& idusen, const QString& atual);
[[nodiscard]] QString UsuarioAtual(const QString& idusen);
[[nodiscard]] QString IdUsuario(const QString& usen);
[[nodiscard]] QString EmailUsuario(const QString& idusen);

[[nodiscard]] QString CodigoProduto(const QString& idprod);
[[nodiscard]] QString DescricaoProduto(const QString& idprod);
[[nodiscard]] QString UnidadeProduto(const QString& idprod);
[[nodiscard]] QString MarcaProduto(const QString& idprod);
[[nodiscard]] QString ClassFiscalProduto(const QString& idprod);
[[nodiscard]] QString CodigoComTributacao(const QString& idclas_fisc);
[[nodiscard]] QString IdProdutoPorCodigo(const QString& codi_prod);
[[nodiscard]] QString DescricaoProdutoPorCodigo(const QString& codi_prod);
/// Sale price in local money at the latest exchange rate that is not deactivated, 0 without a product; double
/// precision.
[[nodiscard]] double ValorVendaProduto(const QString& codi_prod);
/// Latest rate of a currency, 1 without one.
[[nodiscard]] double UltimaCotacao(const QString& idmoed);

[[nodiscard]] QString ValidaPrototipo(const QString& idprot);
[[nodiscard]] QString UnidadePrototipo(const QString& idprot);
[[nodiscard]] QString DescricaoPrototipo(const QString& idprot);
[[nodiscard]] QString ObservacaoPrototipo(const QString& idprot);
[[nodiscard]] QString IdColecao(const QString& desc_cole);

[[nodiscard]] QString DescricaoUnidade(const QString& idunid);
[[nodiscard]] QString CasasDecimaisUnidade(const QString& desc_unid);
/// MascaraDecimais of CasasDecimaisUnidade of DescricaoUnidade: the mask of a unit's quantities.
[[nodiscard]] QString MascaraUnidade(const QString& idunid);

[[nodiscard]] QString IdClientePorNome(const QString& nome_pess);
[[nodiscard]] QString IdClienteContato(const QString& nome_contato, const QString& nome_cliente);
[[nodiscard]] QString IdPessoaContato(const QString& nome_contato, const QString& nome_cliente);
[[nodiscard]] QString IdPessoaPorNome(const QString& nome_pess);
/// Phones and faxes that aren't empty, joined by " / ", as many whole ones as the 50 characters of a quote's
/// field take.
[[nodiscard]] QString FonesCliente(const QString& idclie);
[[nodiscard]] QString EmailCliente(const QString& idclie);
[[nodiscard]] QString FoneContato(const QString& idpess_cont);
[[nodiscard]] QString EmailContato(const QString& idpess_cont);
/// The columns of its statement in their order, each with "^" behind it and any "^" inside turned into a
/// blank: name, address, city, state, postcode, IE or RG, CNPJ or CPF, district.
[[nodiscard]] QString EnderecoCliente(const QString& idclie);

[[nodiscard]] QString IdVendedor(const QString& nome_conh);
[[nodiscard]] QString NomeVendedor(const QString& idvend);
[[nodiscard]] QString NomeConhecidoVendedor(const QString& idvend);
[[nodiscard]] QString IdTransportadora(const QString& nome_conh);
[[nodiscard]] QString NomeTransportadora(const QString& idtrpt);
[[nodiscard]] QString FoneTransportadora(const QString& idtrpt);
[[nodiscard]] QString NomeConhecidoTransportadora(const QString& idtrpt);
[[nodiscard]] QString FoneTransportadoraPorId(const QString& idtrpt);
[[nodiscard]] QString IdFornecedor(const QString& nome_pess);
[[nodiscard]] QString NomeFornecedor(const QString& idforn);

[[nodiscard]] QString IdLocalVenda(const QString& descricao);
[[nodiscard]] QString DescricaoLocalVenda(const QString& id);
[[nodiscard]] QString IdTipoMarketing(const QString& descricao);
[[nodiscard]] QString DescricaoTipoMarketing(const QString& id);
[[nodiscard]] QString IdTipoEvento(const QString& descricao);
[[nodiscard]] QString DescricaoTipoEvento(const QString& id);
[[nodiscard]] QString IdTipoServico(const QString& descricao);
[[nodiscard]] QString DescricaoTipoServico(const QString& id);

[[nodiscard]] QString ParcelasCondPgto(const QString& idcond_pgto);
[[nodiscard]] QString DescricaoCondPgto(const QString& idcond_pgto);
/// Days of the instalments as "030/060/090/", in the order of the instalments.
[[nodiscard]] QString DiasCondPgto(const QString& idcond_pgto);

[[nodiscard]] QString IdPedidoPorNumero(const QString& nume_pedi);
[[nodiscard]] QString NumeroPedidoDoOrcamento(const QString& idprop_cmrc);
[[nodiscard]] QString ClienteDoPedido(const QString& idpedi_veds);
[[nodiscard]] QString DescontoPedido(const QString& nume_pedi);
[[nodiscard]] QString DataPedido(const QString& nume_pedi);
/// "dd/mm/yyyy", empty while the quote is open.
[[nodiscard]] QString DataFechamentoOrcamento(const QString& idprop_cmrc);
[[nodiscard]] QString DescontoOrcamento(const QString& idprop_cmrc);
[[nodiscard]] QString CondPgtoOrcamento(const QString& idprop_cmrc);
[[nodiscard]] QString DataOrcamento(const QString& idprop_cmrc);
/// Number of persons by the numeric reading ("80 a 100" is 80), 0 without one; raises 6 where it does not fit
/// 16 bits.
[[nodiscard]] int PessoasOrcamento(const QString& idprop_cmrc);

/// A named parameter of the company (empr_cnfg), empty if there is none.
[[nodiscard]] QString ParametroEmpresa(const QString& nome);
[[nodiscard]] QString ServidorEmail();
[[nodiscard]] QString NomeConhecidoEmpresa();
[[nodiscard]] QString EmailEmpresa();
[[nodiscard]] QString SenhaEmailEmpresa();
[[nodiscard]] QString EmailOrcamento();
[[nodiscard]] QString SenhaEmailOrcamento();
/// Company data, each field with "^" behind it: name, CNPJ, IE, address, city, state, postcode, phone 1,
/// phone 2, e-mail, site. Empty without a company row.
[[nodiscard]] QString DadosEmpresaTexto();

/// Path of the first image of a code that exists (plain, "W2", "S3"), or ArqSemImagem.
[[nodiscard]] QString LocalizaImagemProduto(const QString& codigo);
/// Whether one of the three images exists.
[[nodiscard]] bool LocalizaImagemPrototipo(const QString& codigo);

#pragma once

#include <QString>

#include "platform/data/asked.h"
#include "platform/data/recordset.h"

// What the screens need to know about a single row: an id from a name, a name from an id, one column of one
// row. Each call runs its own statement, in upper case; nothing is kept between calls. The result is the
// column of the first row, or an empty text when there is no row or the column is null. Names are compared
// exactly, except for case. Ids that a statement does not quote go out as numbers: an empty key as 0, which
// finds nothing.
//
// A lookup is asked when it is called. Whoever needs only one takes its text at once
// (`const QString codigo = waitFor(CodigoProduto(id));`); a routine that makes many rows awaits it, so that
// those of all rows travel together (platform/data/asked.h). Keys are taken by value where the lookup reads
// its answer itself: it outlives its call.

using data::Asked;

/// Reads a result: the whole statement in upper case, as all reads of the program go out.
[[nodiscard]] data::Recordset abreConsulta(const QString& sql, data::Rows linhas = data::Rows::All);
/// Runs statements as they stand, in one transaction.
void executaJuntos(const QStringList& comandos);
/// The same, to travel with others.
Asked<data::Recordset> pedeConsulta(const QString& sql, data::Rows linhas = data::Rows::All);

/// User name; a lost connection (-2147467259) is shown and ends the program, any other error is ignored and
/// gives `atual`.
[[nodiscard]] QString NomeUsuario(const QString& idusen, const QString& atual);
Asked<QString> UsuarioAtual(const QString& idusen);
Asked<QString> IdUsuario(const QString& usen);
Asked<QString> EmailUsuario(const QString& idusen);

Asked<QString> CodigoProduto(const QString& idprod);
Asked<QString> DescricaoProduto(const QString& idprod);
Asked<QString> UnidadeProduto(const QString& idprod);
Asked<QString> MarcaProduto(const QString& idprod);
Asked<QString> ClassFiscalProduto(const QString& idprod);
Asked<QString> CodigoComTributacao(const QString& idclas_fisc);
Asked<QString> IdProdutoPorCodigo(const QString& codi_prod);
Asked<QString> DescricaoProdutoPorCodigo(const QString& codi_prod);
/// Sale price in local money at the latest exchange rate that is not deactivated, 0 without a product; double
/// precision.
Asked<double> ValorVendaProduto(QString codi_prod);
/// Latest rate of a currency, 1 without one.
Asked<double> UltimaCotacao(QString idmoed);

Asked<QString> ValidaPrototipo(const QString& idprot);
Asked<QString> UnidadePrototipo(const QString& idprot);
Asked<QString> DescricaoPrototipo(const QString& idprot);
Asked<QString> ObservacaoPrototipo(const QString& idprot);
Asked<QString> IdColecao(const QString& desc_cole);

Asked<QString> DescricaoUnidade(const QString& idunid);
Asked<QString> CasasDecimaisUnidade(const QString& desc_unid);

Asked<QString> IdClientePorNome(const QString& nome_pess);
Asked<QString> IdClienteContato(const QString& nome_contato, const QString& nome_cliente);
Asked<QString> IdPessoaContato(const QString& nome_contato, const QString& nome_cliente);
Asked<QString> IdPessoaPorNome(const QString& nome_pess);
/// Phones and faxes that aren't empty, joined by " / ", as many whole ones as the 50 characters of a quote's
/// field take.
Asked<QString> FonesCliente(QString idclie);
Asked<QString> EmailCliente(const QString& idclie);
Asked<QString> FoneContato(const QString& idpess_cont);
Asked<QString> EmailContato(const QString& idpess_cont);
/// The columns of its statement in their order, each with "^" after it and any "^" inside turned into a
/// blank: name, address, city, state, postcode, IE or RG, CNPJ or CPF, district.
Asked<QString> EnderecoCliente(QString idclie);

Asked<QString> IdVendedor(const QString& nome_conh);
Asked<QString> NomeVendedor(const QString& idvend);
Asked<QString> NomeConhecidoVendedor(const QString& idvend);
Asked<QString> IdTransportadora(const QString& nome_conh);
Asked<QString> NomeTransportadora(const QString& idtrpt);
Asked<QString> FoneTransportadora(const QString& idtrpt);
Asked<QString> NomeConhecidoTransportadora(const QString& idtrpt);
Asked<QString> FoneTransportadoraPorId(const QString& idtrpt);
Asked<QString> IdFornecedor(const QString& nome_pess);
Asked<QString> NomeFornecedor(const QString& idforn);

Asked<QString> IdLocalVenda(const QString& descricao);
Asked<QString> DescricaoLocalVenda(const QString& id);
Asked<QString> IdTipoMarketing(const QString& descricao);
Asked<QString> DescricaoTipoMarketing(const QString& id);
Asked<QString> IdTipoEvento(const QString& descricao);
Asked<QString> DescricaoTipoEvento(const QString& id);
Asked<QString> IdTipoServico(const QString& descricao);
Asked<QString> DescricaoTipoServico(const QString& id);

Asked<QString> ParcelasCondPgto(const QString& idcond_pgto);
Asked<QString> DescricaoCondPgto(const QString& idcond_pgto);
/// Days of the instalments as "030/060/090/", in the order of the instalments.
Asked<QString> DiasCondPgto(QString idcond_pgto);

Asked<QString> IdPedidoPorNumero(const QString& nume_pedi);
Asked<QString> NumeroPedidoDoOrcamento(const QString& idprop_cmrc);
Asked<QString> ClienteDoPedido(const QString& idpedi_veds);
Asked<QString> DescontoPedido(const QString& nume_pedi);
Asked<QString> DataPedido(const QString& nume_pedi);
/// "dd/mm/yyyy", empty while the quote is open.
Asked<QString> DataFechamentoOrcamento(QString idprop_cmrc);
Asked<QString> DescontoOrcamento(const QString& idprop_cmrc);
Asked<QString> CondPgtoOrcamento(const QString& idprop_cmrc);
Asked<QString> DataOrcamento(const QString& idprop_cmrc);
/// Number of persons by the numeric reading ("80 a 100" is 80), 0 without one; raises 6 where it does not fit
/// 16 bits.
Asked<int> PessoasOrcamento(QString idprop_cmrc);

/// A named parameter of the company (empr_cnfg), empty if there is none.
Asked<QString> ParametroEmpresa(const QString& nome);
Asked<QString> ServidorEmail();
Asked<QString> NomeConhecidoEmpresa();
Asked<QString> EmailEmpresa();
Asked<QString> SenhaEmailEmpresa();
Asked<QString> EmailOrcamento();
Asked<QString> SenhaEmailOrcamento();
/// Company data, each field with "^" after it: name, CNPJ, IE, address, city, state, postcode, phone 1,
/// phone 2, e-mail, site. Empty without a company row.
Asked<QString> DadosEmpresaTexto();

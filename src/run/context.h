#pragma once

#include <QHash>
#include <QString>
#include <memory>
#include <optional>

#include "platform/data/connection.h"

/// The run context: what is known for the whole run. One instance, reached by contexto().
struct Contexto {
  QString LinhaComando;
  int IdUsuarioAtual = 0;
  QString NomeUsuarioAtual;
  QString Ambiente;       ///< "PRD", "HIST", "DEV"; empty works as "PRD"
  QString TelaChamadora;  ///< name of the form that opened a search screen
  QString ambienteVazio;  ///< stays empty all through the run; stands in the window titles

  data::Connection Conexao;
  QString TipoBanco;
  QString DriveSistema, PastaSistema;  ///< install root is the two joined
  QString NomeServidor, NomeBanco, UsuarioBanco, SenhaBanco;
  QString StringConexaoFirebird, StringConexaoMSSQL;
  bool TiraAcento = false;

  QString ArqPaths;
  QString PathImagens, PathImagens2, ExtImagens, ExtImagens2, ArqSemImagem;
  QString PathDocs, PathWeb, PathLink;
  QString imagemTentada;  ///< path that the search for a code's picture tried last

  QString CorFundo, CorFrente, CorFundo2, CorFrente2;  ///< colour numbers as text

  std::optional<QHash<QString, int>> tamanhosDeColunas;  ///< by names in capitals; asked once of a connection

  QString ModoOrcamento;  ///< " " or empty idle, "I" new, "A" altering
  QString ModoItem;

  QString CodProdutoComposicao;  ///< product whose kit is shown; the other programs of the family set it
};

[[nodiscard]] Contexto& contexto();

/// Puts another context in place, fresh by default, and gives the one that stood there.
std::unique_ptr<Contexto> trocaContexto(std::unique_ptr<Contexto> outro = std::make_unique<Contexto>());

/// Starts a fresh context, its connection closed; for tests.
void reiniciaContexto();

/// "TREVANO" where the install marker c:\zarim\config\TREVANO.txt is, else "CLIENTE".
[[nodiscard]] QString TipoInstalacao();

/// Height, " x ", width of the screen in pixels: "768 x 1024".
[[nodiscard]] QString ResolucaoTela();

/// Closes the connection; with "SAIR" the program ends. Without a connection nothing happens.
void FechaConexao(const QString& acao);

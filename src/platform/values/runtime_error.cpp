#include "platform/values/runtime_error.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace values {

namespace {

constexpr std::pair<int, QStringView> kMessages[] = {
    {kOverflow, u"Estouro"},
    {kOutOfMemory, u"Memória insuficiente"},
    {kDivisionByZero, u"Divisão por zero"},
    {kTypeMismatch, u"Tipos incompatíveis"},
    {kBadFileName, u"Nome ou número de arquivo inválido"},
    {kFileNotFound, u"Arquivo não encontrado"},
    {kDiskFull, u"Disco cheio"},
    {kPermissionDenied, u"Permissão negada"},
    {kPathFileAccess, u"Erro de acesso a caminho/arquivo"},
    {kPathNotFound, u"Caminho não encontrado"},
    {kObjectNotSet, u"Variável de objeto não definida"},
    {kInvalidNull, u"Uso inválido de Null"},
    {kInvalidPicture, u"Imagem inválida"},
    {kPrinterError, u"Erro de impressora"},
    {kNoCurrentRecord, u"Não há registro atual: o resultado está vazio ou chegou ao fim"},
    {kUnknownField, u"Item não encontrado na coleção"},
    {kClosedObject, u"Operação não permitida quando o objeto está fechado"},
    {kPictureNotFound, u"Arquivo de imagem não encontrado"},
    {kNoSuchMember, u"O membro solicitado da coleção não existe"},
    {kMailFailed, u"O e-mail não foi enviado"},
    {kStatementFailed, u"O banco de dados recusou o comando"},
    {kConnectionFailed, u"Falha de conexão com o servidor de banco de dados"},
};

}  // namespace

RuntimeError::RuntimeError(int number, QString text, QString statement)
    : number_(number), text_(std::move(text)), statement_(std::move(statement)), utf8_(text_.toUtf8()) {}

QString standardText(int number) {
  for (const auto& [known, text] : kMessages)
    if (known == number) return text.toString();
  return u"Erro %1"_s.arg(number);
}

void raise(int number, const QString& detail) {
  const QString text = standardText(number);
  throw RuntimeError(number, detail.isEmpty() ? text : text + u": "_s + detail);
}

}  // namespace values

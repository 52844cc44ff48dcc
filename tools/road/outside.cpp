#include "outside.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "platform/data/connection.h"
#include "platform/files/contents.h"
#include "platform/files/paths.h"
#include "platform/forms/boxes.h"
#include "run/configuration.h"
#include "run/context.h"
#include "text/fields.h"

using namespace Qt::StringLiterals;

namespace road {

namespace {

constexpr int kConnectTime = 30;
QString lastCommandLine;

/// The program's connection string; where it isn't running, found as it does.
QString connectionString() {
  Contexto& context = contexto();
  if (context.StringConexaoMSSQL.isEmpty() && context.StringConexaoFirebird.isEmpty()) {
    QString line = lastCommandLine;
    context.Ambiente = PegaCampo(line, 3);
    forms::setBoxAnswerer(
        [](const forms::Box& box) -> forms::Answer { throw Failure(u"a connection"_s, box.text); });
    ConectaServidor();
    forms::setBoxAnswerer({});
    context.Conexao.close();
  }
  return context.TipoBanco == u"FIREBIRD"_s ? context.StringConexaoFirebird : context.StringConexaoMSSQL;
}

data::Connection connect() { return {connectionString(), kConnectTime}; }

QJsonArray readMail() {
  const QString folder = qEnvironmentVariable("ZARIM_MAIL_FOLDER");
  if (folder.isEmpty()) throw Failure(u"a mail catcher"_s, u"ZARIM_MAIL_FOLDER is not set"_s);
  // A description without its message is half written.
  QJsonArray messages;
  for (const QFileInfo& message : QDir(folder).entryInfoList({u"*.eml"_s}, QDir::Files, QDir::Name)) {
    QFile description(folder + u'/' + message.completeBaseName() + u".json"_s);
    if (!description.open(QIODevice::ReadOnly))
      throw Failure(u"the parts of "_s + message.fileName(), u"none"_s);
    messages << QJsonDocument::fromJson(description.readAll()).object();
  }
  return messages;
}

bool fits(const QJsonObject& message, const Words& words) {
  for (qsizetype i = 0; i + 1 < words.size(); i += 2) {
    const QString what = words.at(i).text;
    if (what != u"count"_s && !message[what].toString().contains(words.at(i + 1).text)) return false;
  }
  return true;
}

}  // namespace

void setCommandLine(const QString& commandLine) { lastCommandLine = commandLine; }

void runSql(const QString& statement) { connect().execute(statement); }

QString askSql(const QString& statement) {
  data::Connection connection = connect();
  const data::Recordset rows = connection.query(statement);
  return rows.eof() ? QString() : rows.text(rows.columns().first());
}

void expectFileContains(const QString& path, const QString& text) {
  if (!files::exists(path)) throw Failure(u"the file "_s + path, u"there is none"_s);
  const QString content = files::readLines(path).join(u'\n');
  if (!content.contains(text)) throw Failure(u"\"%1\" in %2"_s.arg(text, path), content.left(400));
}

void expectMail(const Words& words) {
  static const QStringList kKnown{u"from"_s,     u"to"_s,         u"subject"_s,
                                  u"contains"_s, u"attachment"_s, u"count"_s};
  std::optional<int> count;
  QStringList asked;
  for (qsizetype i = 0; i + 1 < words.size(); i += 2) {
    if (!kKnown.contains(words.at(i).text)) throw Failure(kKnown.join(u", "_s), words.at(i).text);
    if (words.at(i).text == u"count"_s) count = words.at(i + 1).text.toInt();
    asked << u"%1 \"%2\""_s.arg(words.at(i).text, words.at(i + 1).text);
  }
  int found = 0;
  QStringList all;
  for (const auto& entry : readMail()) {
    const QJsonObject message = entry.toObject();
    if (fits(message, words)) ++found;
    all << u"to %1: %2"_s.arg(message[u"to"_s].toString(), message[u"subject"_s].toString());
  }
  if (count ? found == *count : found > 0) return;
  throw Failure(u"mail "_s + asked.join(u' '),
                u"%1 of %2 (%3)"_s.arg(found).arg(all.size()).arg(all.join(u"; "_s)));
}

}  // namespace road

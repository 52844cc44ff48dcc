#include <gtest/gtest.h>

#include "contract_engine.h"
#include "platform/data/connection.h"
#include "support/errors.h"
#include "support/printing.h"

using namespace Qt::StringLiterals;
using support::errorOf;

namespace {

constexpr bool kServer = true;

/// What is run first, what is asked, and the rows that come ("a|b" each).
struct Case {
  std::string name;
  QStringList before;
  QString query;
  QStringList rows;
  bool asTheServer = false;  ///< holds for the engines that are like the server
};
void PrintTo(const Case& one, std::ostream* out) { *out << one.name; }

const QString kInsert = u"INSERT INTO PROP_CMRC (%1) VALUES (%2)"_s;

QStringList inserted(const QString& column, const QStringList& values) {
  QStringList statements;
  for (const QString& value : values) statements += kInsert.arg(column, u'\'' + value + u'\'');
  return statements;
}

const std::vector<Case>& cases() {
  static const std::vector<Case> all{
      {"Decimals",
       inserted(u"VALO_DECT"_s, {u"1234.50"_s, u"-3.25"_s, u"100"_s, u"0.000001"_s, u"123456789.12"_s}),
       u"SELECT VALO_DECT FROM PROP_CMRC ORDER BY IDPROP_CMRC"_s,
       {u"1234,5"_s, u"-3,25"_s, u"100"_s, u"0,000001"_s, u"123456789,12"_s}},
      {"QuotedAndBareNumbersMeetAKey",
       inserted(u"IDCLIE"_s, {u"5"_s, u"50"_s, u"7"_s}),
       u"SELECT IDCLIE FROM PROP_CMRC WHERE IDPROP_CMRC >= '2' AND (IDPROP_CMRC < 10) AND IDCLIE <> '7'"_s,
       {u"50"_s}},
      {"NullOfEveryType",
       inserted(u"IDCLIE"_s, {u"1"_s}),
       u"SELECT IDVEND, VALO_DECT, DATA_EVEN, NOME_CLIE, TXT_COND_PGTO FROM PROP_CMRC"_s,
       {u"||||"_s}},
      {"EmptyTextIsNoNull",
       inserted(u"NOME_CLIE"_s, {u""_s}),
       u"SELECT IDPROP_CMRC FROM PROP_CMRC WHERE NOME_CLIE = '' AND NOT NOME_CLIE IS NULL"_s,
       {u"1"_s}},
      {"Dates",
       inserted(u"DATA_EVEN"_s, {u"20240315"_s, u"20240315 10:30"_s, u"20181104"_s}),
       u"SELECT DATA_EVEN FROM PROP_CMRC ORDER BY IDPROP_CMRC"_s,
       {u"15/03/2024"_s, u"15/03/2024 10:30:00"_s, u"04/11/2018"_s},
       kServer},
      {"DatesCompareByTime",
       inserted(u"DATA_EVEN"_s, {u"20240315 10:30"_s, u"20240314"_s, u"20240315"_s, u"20240316"_s}),
       u"SELECT IDPROP_CMRC FROM PROP_CMRC WHERE DATA_EVEN >= '20240315' AND DATA_EVEN < '20240316 00:00' "
       "AND DATA_EVEN <> '20240315 10:31' OR DATA_EVEN = '20240316 00:00' ORDER BY DATA_EVEN DESC"_s,
       {u"4"_s, u"1"_s, u"3"_s},
       kServer},
      {"AccentsBothWays",
       inserted(u"PROP_CMRC_DESC"_s, {u"Ação de Páscoa – 10 €"_s, QString(100, u'ã')}),
       u"SELECT PROP_CMRC_DESC FROM PROP_CMRC ORDER BY IDPROP_CMRC"_s,
       {u"Ação de Páscoa – 10 €"_s, QString(100, u'ã')}},
      {"LikeWithoutRegardToCase",
       inserted(u"NOME_CLIE"_s, {u"Caixa de Bombons Ímã"_s, u"BOMBOM"_s, u"x"_s, u"100% cacau"_s}),
       u"SELECT IDPROP_CMRC FROM PROP_CMRC WHERE NOME_CLIE LIKE '%BOMBO_S ÍMÃ%' OR NOME_CLIE LIKE 'bom%' "
       "OR NOME_CLIE LIKE '_' ORDER BY IDPROP_CMRC"_s,
       {u"1"_s, u"2"_s, u"3"_s},
       kServer},
      {"EqualWithoutRegardToCaseAndTrailingBlanks",
       inserted(u"NOME_CLIE"_s, {u"conteúdo  "_s, u"Conteúdo"_s, u" conteúdo"_s, u"conteudo"_s}),
       u"SELECT IDPROP_CMRC FROM PROP_CMRC WHERE NOME_CLIE = 'CONTEÚDO ' ORDER BY IDPROP_CMRC"_s,
       {u"1"_s, u"2"_s},
       kServer},
      {"OrderWithoutRegardToCase",
       inserted(u"NOME_CLIE"_s, {u"zebra"_s, u"Água"_s, u"banana"_s, u"AGUDO"_s, u"Bala"_s}),
       u"SELECT NOME_CLIE FROM PROP_CMRC ORDER BY NOME_CLIE"_s,
       {u"Água"_s, u"AGUDO"_s, u"Bala"_s, u"banana"_s, u"zebra"_s},
       kServer},
      {"EmptyTextIsZeroInAWholeNumber",
       inserted(u"IDCLIE"_s, {u""_s, u"3"_s}) << u"UPDATE PROP_CMRC SET IDVEND='' WHERE (IDPROP_CMRC=2)"_s,
       u"SELECT IDCLIE, IDVEND FROM PROP_CMRC ORDER BY IDPROP_CMRC"_s,
       {u"0|"_s, u"3|0"_s},
       kServer},
      {"IdentityInCapitals",
       inserted(u"IDCLIE"_s, {u"1"_s, u""_s}) << u"insert into PROP_CMRC_DETA (idprop_cmrc) values ('2')"_s,
       u"SELECT @@IDENTITY AS 'MAXPROPCMRCDETA'"_s,
       {u"1"_s},
       kServer},
      {"NumbersOfDeletedRowsAreNotUsedAgain",
       inserted(u"IDCLIE"_s, {u"1"_s, u"2"_s})
           << u"DELETE FROM PROP_CMRC WHERE (idPROP_CMRC=2)"_s << inserted(u"IDCLIE"_s, {u"3"_s}),
       u"SELECT IDPROP_CMRC FROM PROP_CMRC ORDER BY IDPROP_CMRC"_s,
       {u"1"_s, u"3"_s}},
      {"DeleteWithoutFrom",
       inserted(u"IDCLIE"_s, {u"1"_s, u"2"_s}) << u"DELETE PROP_CMRC WHERE idPROP_CMRC = '1'"_s,
       u"SELECT IDPROP_CMRC FROM PROP_CMRC"_s,
       {u"2"_s},
       kServer},
      {"SignsOfTheDriverInsideATextAreText",
       inserted(u"NOME_CLIE"_s, {u"? :a {d} @x \"y\" [z] -- /* ; 50% a''b"_s}),
       u"SELECT NOME_CLIE FROM PROP_CMRC WHERE NOME_CLIE LIKE '%{d}%'"_s,
       {u"? :a {d} @x \"y\" [z] -- /* ; 50% a'b"_s}},
      {"LongTextWithLineBreaks",
       inserted(u"TXT_COND_PGTO"_s, {QString(4000, u'é') + u"\r\n\t"_s + QString(6000, u'x')}),
       u"SELECT TXT_COND_PGTO FROM PROP_CMRC"_s,
       {QString(4000, u'é') + u"\r\n\t"_s + QString(6000, u'x')}},
  };
  return all;
}

/// Statements that fail with -2147217900.
const std::vector<Case>& refusals() {
  static const std::vector<Case> all{
      {"BrokenByAQuote", {}, kInsert.arg(u"NOME_CLIE"_s, u"'D'ÁVILA'"_s), {}},
      {"SecondStatement",
       {},
       kInsert.arg(u"NOME_CLIE"_s, u"'x') SELECT * FROM PROP_CMRC WHERE ('1'='1'"_s),
       {}},
      {"CommentAfterASecondStatement",
       {},
       kInsert.arg(u"NOME_CLIE"_s, u"'x'); DELETE FROM PROP_CMRC; --'"_s),
       {}},
      {"HalfACharacter", {}, kInsert.arg(u"NOME_CLIE"_s, u"'a"_s + QChar(0xD83C) + u"b'"_s), {}},
      {"NumberGluedToAText", {}, u"SELECT * FROM PROP_CMRC WHERE NOME_CLIE=''1"_s, {}},
      {"UnknownColumn", {}, u"SELECT * FROM PROP_CMRC ORDER BY RAZAOSOCIAL"_s, {}},
      {"TextIntoWholeNumber", {}, kInsert.arg(u"IDCLIE"_s, u"'abc'"_s), {}, kServer},
      {"FractionIntoWholeNumber", {}, kInsert.arg(u"IDCLIE"_s, u"'1.5'"_s), {}, kServer},
      {"EmptyIntoDecimal", {}, kInsert.arg(u"VALO_DECT"_s, u"''"_s), {}, kServer},
      {"CommaIntoDecimal", {}, kInsert.arg(u"VALO_DECT"_s, u"'1234,56'"_s), {}, kServer},
      {"DayFirstIntoDate", {}, kInsert.arg(u"DATA_EVEN"_s, u"'31/12/2024'"_s), {}, kServer},
      {"NoSuchDay", {}, kInsert.arg(u"DATA_EVEN"_s, u"'20240231'"_s), {}, kServer},
      {"NoSuchHour", {}, kInsert.arg(u"DATA_EVEN"_s, u"'20240228 24:00'"_s), {}, kServer},
  };
  return all;
}

/// An engine with the tables of a quote, empty.
class OnEngine : public ::testing::Test {
 protected:
  void start(const std::string& engine, bool asTheServer = false) {
    if (asTheServer && !contract::isLikeTheServer(engine)) GTEST_SKIP() << "this engine differs here";
    engine_ = std::make_unique<contract::Engine>(engine);
    reconnect();
    for (const auto name : {u"prop_cmrc", u"prop_cmrc_deta"})
      for (const QString& statement : engine_->createTable(*schema::find(name)))
        connection.execute(statement);
  }
  void TearDown() override {
    if (!engine_) return;
    reconnect();
    for (const auto& name : {u"prop_cmrc"_s, u"prop_cmrc_deta"_s})
      connection.execute(u"DROP TABLE "_s + name);
  }

  void reconnect() {
    connection.setListener({});
    connection.drop();
    connection.open(engine_->connectionString(), 20);
  }
  [[nodiscard]] QStringList rows(const QString& sql) {
    QStringList all;
    for (data::Recordset rs = connection.query(sql); !rs.eof(); rs.moveNext()) {
      QStringList fields;
      for (const QString& column : rs.columns()) fields << rs.text(column);
      all << fields.join(u'|');
    }
    return all;
  }
  void insert(const QString& column, const QString& value) {
    connection.execute(inserted(column, {value}).first());
  }

  data::Connection connection;

 private:
  std::unique_ptr<contract::Engine> engine_;
};

using Cell = std::tuple<std::string, Case>;
class ContractRows : public OnEngine, public ::testing::WithParamInterface<Cell> {
 protected:
  ContractRows() : one(std::get<Case>(GetParam())) {}
  void SetUp() override { start(std::get<std::string>(GetParam()), one.asTheServer); }
  const Case& one;
};
class ContractRefusals : public ContractRows {};

TEST_P(ContractRows, AreTheSame) {
  for (const QString& statement : one.before) connection.execute(statement);
  EXPECT_EQ(rows(one.query), one.rows);
}

TEST_P(ContractRefusals, FailAndEndTheUseOfTheConnection) {
  connection.begin();
  insert(u"NOME_CLIE"_s, u"antes"_s);
  EXPECT_EQ(errorOf([&] { connection.execute(one.query); }), values::kStatementFailed);
  QStringList sent;
  connection.setListener([&](const QString& statement) { sent << statement; });
  EXPECT_EQ(errorOf([&] { connection.commit(); }), values::kStatementFailed);
  EXPECT_EQ(errorOf([&] { (void)connection.query(u"SELECT 1"_s); }), values::kStatementFailed);
  EXPECT_EQ(sent, QStringList());
  reconnect();
  EXPECT_EQ(rows(u"SELECT NOME_CLIE FROM PROP_CMRC"_s), QStringList());
}

class Contract : public OnEngine, public ::testing::WithParamInterface<std::string> {
 protected:
  void SetUp() override { start(GetParam()); }
};

TEST_P(Contract, KeepsWhatIsCommittedAndNothingElse) {
  connection.begin();
  insert(u"NOME_CLIE"_s, u"um"_s);
  connection.commit();
  connection.begin();
  insert(u"NOME_CLIE"_s, u"dois"_s);
  reconnect();
  EXPECT_EQ(rows(u"SELECT NOME_CLIE FROM PROP_CMRC"_s), QStringList{u"um"_s});
}

TEST_P(Contract, NamesColumnsAsTheStatementDoes) {
  insert(u"VALO_DECT"_s, u"2.5"_s);
  const auto rs = connection.query(u"SELECT IDPROP_CMRC as 'Cliente', VALO_DECT, 'x' FROM PROP_CMRC"_s);
  EXPECT_EQ(rs.text(u"CLIENTE"), u"1"_s);
  EXPECT_EQ(rs.format(u"valo_dect", u"###0.00"), u"2,50"_s);
  EXPECT_EQ(errorOf([&] { (void)rs.text(u"nada"); }), 3265);
  const auto none = connection.query(u"SELECT NOME_CLIE, TXT_COND_PGTO, IDCLIE FROM PROP_CMRC WHERE 1=0"_s);
  EXPECT_EQ(none.longest(u"nome_clie"), 200);
  EXPECT_EQ(none.longest(u"txt_cond_pgto") + none.longest(u"idclie"), 0);
}

TEST_P(Contract, ShowsTheRowsOfAResultAfterAllThatCanRaise) {
  // SQLite's driver reads past the end of a text that is no date to it.
  const bool likeTheServer = contract::isLikeTheServer(GetParam());
  insert(u"NOME_CLIE"_s, u"Ana"_s);
  likeTheServer ? insert(u"DATA_EVEN"_s, u"20240315 10:30"_s) : insert(u"NOME_CLIE"_s, u""_s);
  const auto rs = connection.query(u"SELECT DATA_EVEN, NOME_CLIE, IDPROP_CMRC FROM PROP_CMRC ORDER BY 3"_s);
  const data::ShownField fields[] = {{u"nome_clie"}, {u"data_even", u"dd/mm"}, {u"data_even"}};
  const auto shown = rs.shown(fields);
  const auto row = [&](qsizetype at) { return shown(at, 0) + u'|' + shown(at, 1) + u'|' + shown(at, 2); };
  EXPECT_EQ(row(0), u"Ana||"_s);
  EXPECT_EQ(row(1), likeTheServer ? u"|15/03|15/03/2024 10:30:00"_s : u"||"_s);
  for (const auto& [field, number] : {std::pair{data::ShownField{u"nada"}, 3265},
                                      {data::ShownField{u"nome_clie", u"dd/mm"}, 13},
                                      {data::ShownField{u"idprop_cmrc", u"dd/mm"}, 13}})
    EXPECT_EQ(errorOf([&] { (void)rs.shown({&field, 1}); }), number);
}

TEST_P(Contract, GivesAResultForEachStatementOfABatch) {
  using enum data::Rows;
  connection.begin();
  std::vector<data::Statement> statements{{u"DELETE FROM PROP_CMRC WHERE IDCLIE = 99"_s}};
  for (int i = 0; i < 2500; ++i) statements.push_back({kInsert.arg(u"NOME_CLIE"_s, u"'a--/*\n%1'"_s.arg(i))});
  auto results = connection.batch(statements);
  EXPECT_EQ(results.size(), statements.size());
  connection.commit();
  const QString all = u"SELECT IDPROP_CMRC FROM PROP_CMRC WHERE IDPROP_CMRC < 4 ORDER BY IDPROP_CMRC"_s;
  statements = {{all, First},
                {u"SELECT IDPROP_CMRC FROM PROP_CMRC"_s, First},
                {u"UPDATE PROP_CMRC SET IDCLIE = '5' WHERE IDPROP_CMRC < 4"_s},
                {all},
                {u"SELECT IDVEND FROM PROP_CMRC WHERE IDPROP_CMRC = 0"_s, First},
                {u"SELECT COUNT(*) AS N FROM PROP_CMRC WHERE IDCLIE = 5"_s}};
  results = connection.batch(statements);
  ASSERT_EQ(results.size(), 6);
  EXPECT_EQ(results[0].count() * 100 + results[1].count() * 10 + results[3].count(), 113);
  EXPECT_FALSE(results[2].isOpen());
  EXPECT_TRUE(results[4].eof());
  EXPECT_EQ(results[5].text(u"n"), u"3"_s);
  EXPECT_EQ(rows(u"SELECT COUNT(*) FROM PROP_CMRC WHERE NOME_CLIE = 'a--/*\n2499'"_s), QStringList{u"1"_s});
}

TEST_P(Contract, EndsABatchAtItsFirstErrorAndLeavesNoLimit) {
  for (int i = 0; i < 6; ++i) insert(u"IDCLIE"_s, u"1"_s);
  const auto failing = [&](const QString& bad) {
    try {
      connection.batch({{u"SELECT * FROM PROP_CMRC"_s, data::Rows::First},
                        {u"SELECT IDVEND FROM PROP_CMRC"_s, data::Rows::First},
                        {bad, data::Rows::First},
                        {u"DELETE FROM PROP_CMRC"_s}});
    } catch (const values::RuntimeError& error) {
      EXPECT_EQ(error.number(), values::kStatementFailed);
      return error.statement();
    }
    return QString();
  };
  const QString unknown = u"SELECT NADA FROM PROP_CMRC"_s,
                odd = u"SELECT * FROM PROP_CMRC WHERE A = 'D'ÁGUA'"_s;
  EXPECT_EQ(failing(unknown), unknown);
  connection.execute(u"UPDATE PROP_CMRC SET IDVEND = '7' WHERE IDCLIE = 1"_s);
  EXPECT_EQ(rows(u"SELECT IDVEND FROM PROP_CMRC"_s).count(u"7"_s), 6);
  EXPECT_EQ(failing(odd), odd) << "it goes alone";
  EXPECT_EQ(rows(u"SELECT * FROM PROP_CMRC"_s).size(), 6);
  connection.begin();
  EXPECT_EQ(failing(unknown), unknown);
  EXPECT_EQ(failing(odd), unknown) << "nothing more is sent";
}

TEST_P(Contract, DistinguishesAClosedConnectionFromAnEmptyResult) {
  EXPECT_TRUE(connection.query(u"SELECT * FROM PROP_CMRC"_s).eof());
  connection.close();
  EXPECT_FALSE(connection.isOpen());
  EXPECT_EQ(errorOf([&] { connection.begin(); }), values::kClosedObject);
  EXPECT_EQ(errorOf([&] { (void)connection.query(u"SELECT 1"_s); }), values::kClosedObject);
}

using ::testing::Combine, ::testing::ValuesIn;
constexpr auto kCellName = [](const auto& cell) {
  return std::get<std::string>(cell.param) + "_" + std::get<Case>(cell.param).name;
};
INSTANTIATE_TEST_SUITE_P(Engines, ContractRows, Combine(ValuesIn(contract::engines()), ValuesIn(cases())),
                         kCellName);
INSTANTIATE_TEST_SUITE_P(Engines, ContractRefusals,
                         Combine(ValuesIn(contract::engines()), ValuesIn(refusals())), kCellName);
INSTANTIATE_TEST_SUITE_P(Engines, Contract, ValuesIn(contract::engines()),
                         [](const auto& engine) { return engine.param; });

}  // namespace

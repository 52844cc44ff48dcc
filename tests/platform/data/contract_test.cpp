#include <gtest/gtest.h>

#include <optional>

#include "contract_engines.h"
#include "platform/data/connection.h"
#include "support/printing.h"

using namespace Qt::StringLiterals;
using contract::Trait;

namespace {

/// One row of the table: what is run first, what is asked, and the rows that come ("a|b" each).
struct Case {
  const char* name;
  QStringList before;
  QString query;
  QStringList rows;
  std::set<Trait> needs = {};
};

/// A statement that fails with -2147217900.
struct Refused {
  const char* name;
  QString statement;
  std::set<Trait> needs = {};
};

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
       {Trait::Dates}},
      {"DatesCompareByTime",
       inserted(u"DATA_EVEN"_s, {u"20240315 10:30"_s, u"20240314"_s, u"20240315"_s, u"20240316"_s}),
       u"SELECT IDPROP_CMRC FROM PROP_CMRC WHERE DATA_EVEN >= '20240315' AND DATA_EVEN < '20240316 00:00' "
       "AND DATA_EVEN <> '20240315 10:31' ORDER BY DATA_EVEN DESC"_s,
       {u"1"_s, u"3"_s},
       {Trait::Dates}},
      {"MidnightEqualsTheDay",
       inserted(u"DATA_EVEN"_s, {u"20240315 00:00"_s, u"20240315"_s, u"20240315 00:01"_s}),
       u"SELECT IDPROP_CMRC FROM PROP_CMRC WHERE DATA_EVEN = '20240315' ORDER BY IDPROP_CMRC"_s,
       {u"1"_s, u"2"_s},
       {Trait::Dates}},
      {"AccentsBothWays",
       inserted(u"NOME_CLIE"_s, {u"Ação de Páscoa – 10 €"_s, u"ÁÉÍÓÚÂÊÔÃÕÇàü"_s}),
       u"SELECT NOME_CLIE FROM PROP_CMRC ORDER BY IDPROP_CMRC"_s,
       {u"Ação de Páscoa – 10 €"_s, u"ÁÉÍÓÚÂÊÔÃÕÇàü"_s}},
      {"AsManyAccentsAsTheColumnHolds",
       inserted(u"PROP_CMRC_DESC"_s, {QString(100, u'ã')}),
       u"SELECT PROP_CMRC_DESC FROM PROP_CMRC"_s,
       {QString(100, u'ã')}},
      {"OtherScripts",
       inserted(u"NOME_CLIE"_s, {u"日本 🎁 Łódź"_s}),
       u"SELECT NOME_CLIE FROM PROP_CMRC"_s,
       {u"日本 🎁 Łódź"_s},
       {Trait::AllOfUnicode}},
      {"EqualWithoutRegardToCase",
       inserted(u"NOME_CLIE"_s, {u"conteúdo comestível"_s, u"CONTEUDO COMESTIVEL"_s, u"conteúdo"_s}),
       u"SELECT IDPROP_CMRC FROM PROP_CMRC WHERE NOME_CLIE = 'CONTEÚDO COMESTÍVEL'"_s,
       {u"1"_s},
       {Trait::CaseOfAccents}},
      {"LikeWithoutRegardToCase",
       inserted(u"NOME_CLIE"_s, {u"Caixa de Bombons Ímã"_s, u"BOMBOM"_s, u"x"_s, u"100% cacau"_s}),
       u"SELECT IDPROP_CMRC FROM PROP_CMRC WHERE NOME_CLIE LIKE '%BOMBO_S ÍMÃ%' OR NOME_CLIE LIKE 'bom%' "
       "OR NOME_CLIE LIKE '_' ORDER BY IDPROP_CMRC"_s,
       {u"1"_s, u"2"_s, u"3"_s},
       {Trait::CaseOfAccents}},
      {"TrailingBlanksDoNotCount",
       inserted(u"NOME_CLIE"_s, {u"ANA  "_s, u"ANA"_s, u" ANA"_s}),
       u"SELECT IDPROP_CMRC FROM PROP_CMRC WHERE NOME_CLIE = 'ana ' ORDER BY IDPROP_CMRC"_s,
       {u"1"_s, u"2"_s},
       {Trait::PaddedEquality}},
      {"OrderWithoutRegardToCase",
       inserted(u"NOME_CLIE"_s, {u"zebra"_s, u"Água"_s, u"banana"_s, u"AGUDO"_s, u"Bala"_s}),
       u"SELECT NOME_CLIE FROM PROP_CMRC ORDER BY NOME_CLIE"_s,
       {u"Água"_s, u"AGUDO"_s, u"Bala"_s, u"banana"_s, u"zebra"_s},
       {Trait::CaseOfAccents}},
      {"EmptyTextIsZeroInAWholeNumber",
       inserted(u"IDCLIE"_s, {u""_s, u"3"_s}) << u"UPDATE PROP_CMRC SET IDVEND='' WHERE (IDPROP_CMRC=2)"_s,
       u"SELECT IDCLIE, IDVEND FROM PROP_CMRC ORDER BY IDPROP_CMRC"_s,
       {u"0|"_s, u"3|0"_s},
       {Trait::EmptyIsZero}},
      {"IdentityAsWritten",
       inserted(u"IDCLIE"_s, {u"1"_s, u"2"_s}),
       u"SELECT @@identity as 'MaxPropCmrc'"_s,
       {u"2"_s},
       {Trait::Identity}},
      {"IdentityInCapitals",
       inserted(u"IDCLIE"_s, {u"1"_s, u""_s}) << u"insert into PROP_CMRC_DETA (idprop_cmrc) values ('2')"_s,
       u"SELECT @@IDENTITY AS 'MAXPROPCMRCDETA'"_s,
       {u"1"_s},
       {Trait::Identity}},
      {"NumbersOfDeletedRowsAreNotUsedAgain",
       inserted(u"IDCLIE"_s, {u"1"_s, u"2"_s})
           << u"DELETE FROM PROP_CMRC WHERE (idPROP_CMRC=2)"_s << inserted(u"IDCLIE"_s, {u"3"_s}),
       u"SELECT IDPROP_CMRC FROM PROP_CMRC ORDER BY IDPROP_CMRC"_s,
       {u"1"_s, u"3"_s}},
      {"DeleteWithoutFrom",
       inserted(u"IDCLIE"_s, {u"1"_s, u"2"_s}) << u"DELETE PROP_CMRC WHERE idPROP_CMRC = '1'"_s,
       u"SELECT IDPROP_CMRC FROM PROP_CMRC"_s,
       {u"2"_s},
       {Trait::BareDelete}},
      {"SignsOfTheDriverInsideATextAreText",
       inserted(u"NOME_CLIE"_s, {u"? :a {d} @x \"y\" [z] -- /* ; 50% a''b"_s}),
       u"SELECT NOME_CLIE FROM PROP_CMRC WHERE NOME_CLIE LIKE '%{d}%'"_s,
       {u"? :a {d} @x \"y\" [z] -- /* ; 50% a'b"_s}},
      {"LongTextWithLineBreaks",
       inserted(u"TXT_COND_PGTO"_s, {QString(4000, u'é') + u"\r\n\t"_s + QString(6000, u'x')}),
       u"SELECT TXT_COND_PGTO FROM PROP_CMRC"_s,
       {QString(4000, u'é') + u"\r\n\t"_s + QString(6000, u'x')}},
      {"JoinByComma",
       inserted(u"NOME_CLIE"_s, {u"A"_s})
           << u"insert into PROP_CMRC_DETA (idprop_cmrc, qtde) values ('1','2.5')"_s,
       u"SELECT PROP_CMRC.NOME_CLIE, PROP_CMRC_DETA.QTDE FROM PROP_CMRC, PROP_CMRC_DETA "
       "WHERE PROP_CMRC.IDPROP_CMRC = PROP_CMRC_DETA.IDPROP_CMRC AND (PROP_CMRC.DATA_DESA Is Null)"_s,
       {u"A|2,5"_s}},
  };
  return all;
}

const std::vector<Refused>& refusals() {
  static const std::vector<Refused> all{
      {"BrokenByAQuote", kInsert.arg(u"NOME_CLIE"_s, u"'D'ÁVILA'"_s)},
      {"UnknownTable", u"SELECT * FROM NADA"_s},
      {"UnknownColumn", u"SELECT * FROM PROP_CMRC ORDER BY RAZAOSOCIAL"_s},
      {"TextIntoWholeNumber", kInsert.arg(u"IDCLIE"_s, u"'abc'"_s), {Trait::Refusal}},
      {"FractionIntoWholeNumber", kInsert.arg(u"IDCLIE"_s, u"'1.5'"_s), {Trait::Refusal}},
      {"TextIntoDecimal", kInsert.arg(u"VALO_DECT"_s, u"'abc'"_s), {Trait::Refusal}},
      {"EmptyIntoDecimal", kInsert.arg(u"VALO_DECT"_s, u"''"_s), {Trait::Refusal}},
      {"CommaIntoDecimal", kInsert.arg(u"VALO_DECT"_s, u"'1234,56'"_s), {Trait::Refusal}},
      {"TextIntoDate", kInsert.arg(u"DATA_EVEN"_s, u"'abc'"_s), {Trait::Refusal}},
      {"DayFirstIntoDate", kInsert.arg(u"DATA_EVEN"_s, u"'31/12/2024'"_s), {Trait::Refusal}},
      {"NoSuchDay", kInsert.arg(u"DATA_EVEN"_s, u"'20240231'"_s), {Trait::Refusal}},
      {"NoSuchHour", kInsert.arg(u"DATA_EVEN"_s, u"'20240228 24:00'"_s), {Trait::Refusal}},
  };
  return all;
}

// What a failed test shows of its parameters.
void PrintTo(const Case& one, std::ostream* out) { *out << one.name; }
void PrintTo(const Refused& one, std::ostream* out) { *out << one.name; }

/// A connection to an engine with the tables of a quote, empty.
class ContractSuite {
 public:
  explicit ContractSuite(const contract::EngineKind& kind) : engine_(kind.make()) {}

  /// Why a case can't run; empty when it can.
  [[nodiscard]] QString reasonToSkip(const std::set<Trait>& needs) const {
    const std::set<Trait> lacks = engine_->lacks();
    for (const Trait trait : needs)
      if (lacks.contains(trait)) return u"this engine differs here"_s;
    return {};
  }

  void open() {
    connection = connected();
    for (const auto name : {u"prop_cmrc", u"prop_cmrc_deta"}) {
      const schema::Table& table = *schema::find(name);
      for (const QString& statement : engine_->createTable(table)) connection.execute(statement);
      made_ << QString::fromLatin1(table.name);
    }
  }

  ~ContractSuite() {
    if (made_.isEmpty()) return;
    connection.close();
    data::Connection last = connected();
    for (const QString& table : made_) last.execute(u"DROP TABLE "_s + table);
  }

  [[nodiscard]] data::Connection connected() const {
    data::Connection made;
    made.open(engine_->connectionString(), 20);
    return made;
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

  data::Connection connection;

 private:
  std::unique_ptr<contract::Engine> engine_;
  QStringList made_;
};

int errorOf(const std::function<void()>& act) {
  try {
    act();
  } catch (const values::RuntimeError& error) {
    return error.number();
  }
  return 0;
}

/// Starts a suite for an engine, or leaves the test where the engine can't run it.
#define START(suite, kind, ...)                                                    \
  ContractSuite suite(kind);                                                       \
  if (const QString reason = suite.reasonToSkip({__VA_ARGS__}); !reason.isEmpty()) \
    GTEST_SKIP() << reason.toStdString();                                          \
  suite.open()

using RowsParam = std::tuple<contract::EngineKind, Case>;
class ContractRows : public ::testing::TestWithParam<RowsParam> {};

TEST_P(ContractRows, AreTheSame) {
  const auto& [kind, one] = GetParam();
  START(suite, kind, one.needs);
  for (const QString& statement : one.before) suite.connection.execute(statement);
  EXPECT_EQ(suite.rows(one.query), one.rows);
}

using RefusedParam = std::tuple<contract::EngineKind, Refused>;
class ContractRefusals : public ::testing::TestWithParam<RefusedParam> {};

TEST_P(ContractRefusals, FailAndEndTheUseOfTheConnection) {
  const auto& [kind, one] = GetParam();
  START(suite, kind, one.needs);
  suite.connection.begin();
  suite.connection.execute(u"INSERT INTO PROP_CMRC (NOME_CLIE) VALUES ('antes')"_s);
  EXPECT_EQ(errorOf([&] { suite.connection.execute(one.statement); }), values::kStatementFailed);
  QStringList sent;
  suite.connection.setListener([&](const QString& statement) { sent << statement; });
  EXPECT_EQ(errorOf([&] { suite.connection.commit(); }), values::kStatementFailed);
  EXPECT_EQ(errorOf([&] { (void)suite.connection.query(u"SELECT 1"_s); }), values::kStatementFailed);
  EXPECT_EQ(sent, QStringList());
  suite.connection = suite.connected();
  EXPECT_EQ(suite.rows(u"SELECT NOME_CLIE FROM PROP_CMRC"_s), QStringList());
}

class Contract : public ::testing::TestWithParam<contract::EngineKind> {};

TEST_P(Contract, KeepsWhatIsCommittedAndNothingElse) {
  START(suite, GetParam());
  suite.connection.begin();
  suite.connection.execute(u"INSERT INTO PROP_CMRC (NOME_CLIE) VALUES ('um')"_s);
  suite.connection.commit();
  suite.connection.begin();
  suite.connection.execute(u"INSERT INTO PROP_CMRC (NOME_CLIE) VALUES ('dois')"_s);
  suite.connection = suite.connected();
  EXPECT_EQ(suite.rows(u"SELECT NOME_CLIE FROM PROP_CMRC"_s), QStringList{u"um"_s});
}

TEST_P(Contract, RunsOtherStatementsWhileAResultIsWalked) {
  START(suite, GetParam());
  for (const auto& id : {u"1"_s, u"2"_s, u"3"_s})
    suite.connection.execute(u"INSERT INTO PROP_CMRC (IDCLIE) VALUES ('%1')"_s.arg(id));
  suite.connection.begin();
  int walked = 0;
  for (auto rs = suite.connection.query(u"SELECT * FROM PROP_CMRC"_s); !rs.eof(); rs.moveNext(), ++walked) {
    suite.connection.execute(u"UPDATE PROP_CMRC SET IDCLIE='9' WHERE IDPROP_CMRC="_s +
                             rs.text(u"idprop_cmrc"));
    EXPECT_EQ(suite.rows(u"SELECT IDCLIE FROM PROP_CMRC WHERE IDPROP_CMRC="_s + rs.text(u"IDPROP_CMRC")),
              QStringList{u"9"_s});
  }
  suite.connection.commit();
  EXPECT_EQ(walked, 3);
}

TEST_P(Contract, NamesColumnsAsTheStatementDoes) {
  START(suite, GetParam());
  suite.connection.execute(u"INSERT INTO PROP_CMRC (IDCLIE, VALO_DECT) VALUES ('4', '2.5')"_s);
  const auto rs = suite.connection.query(u"SELECT IDCLIE as 'Cliente', VALO_DECT, 'x' FROM PROP_CMRC"_s);
  EXPECT_EQ(rs.text(u"CLIENTE"), u"4"_s);
  EXPECT_EQ(rs.format(u"valo_dect", u"###0.00"), u"2,50"_s);
  EXPECT_EQ(errorOf([&] { (void)rs.text(u"nada"); }), 3265);
}

TEST_P(Contract, TellsAConnectionThatWasNeverMadeFromAnEmptyResult) {
  START(suite, GetParam());
  EXPECT_TRUE(suite.connection.query(u"SELECT * FROM PROP_CMRC"_s).eof());
  suite.connection.close();
  EXPECT_FALSE(suite.connection.isOpen());
  EXPECT_EQ(errorOf([&] { suite.connection.begin(); }), values::kClosedObject);
  EXPECT_EQ(errorOf([&] { (void)suite.connection.query(u"SELECT 1"_s); }), values::kClosedObject);
}

constexpr auto kEngineName = [](const auto& info) { return std::string(info.param.name); };
constexpr auto kCellName = [](const auto& info) {
  return std::string(std::get<0>(info.param).name) + "_" + std::get<1>(info.param).name;
};

INSTANTIATE_TEST_SUITE_P(Engines, ContractRows,
                         ::testing::Combine(::testing::ValuesIn(contract::engines()),
                                            ::testing::ValuesIn(cases())),
                         kCellName);
INSTANTIATE_TEST_SUITE_P(Engines, ContractRefusals,
                         ::testing::Combine(::testing::ValuesIn(contract::engines()),
                                            ::testing::ValuesIn(refusals())),
                         kCellName);
INSTANTIATE_TEST_SUITE_P(Engines, Contract, ::testing::ValuesIn(contract::engines()), kEngineName);

}  // namespace

#include <korvane/ado/sqlite/Translate.h>

#include <korvane/ado/sql/Translator.h>
#include <korvane/ado/sqlite/Values.h>

namespace Korvane::ado::sqlite {

namespace {

class Translator : public sql::Translator {
  public:
    using sql::Translator::Translator;

  private:
    std::string literalText(const sql::ColumnValue& value) const override {
        return sqlite::literalText(value);
    }
};

} // namespace

sql::Translation translate(std::string_view statement, const sql::Tables& tables,
                           std::string_view addedColumns) {
    return Translator(statement, tables).run(addedColumns);
}

} // namespace Korvane::ado::sqlite

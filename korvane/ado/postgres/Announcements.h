#pragma once

#include <korvane/ado/ResultColumns.h>

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

struct pg_result;

namespace Korvane::ado::postgres {

struct Shape;

/// What came of a statement.
struct Outcome {
    std::shared_ptr<const pg_result> rows;
    std::shared_ptr<const ResultColumns> columns; ///< null when it returns no rows
    std::int32_t touched = 0;                     ///< rows inserted, updated or deleted
};

/// The statements that somebody is about to run, with what came of those that have been sent ahead.
class Announcements {
  public:
    /// One statement and what is known of it.
    struct Item {
        std::string statement;
        bool taken = false;
        bool writes = false;
        bool needless = false; ///< an Insert beside an Update that has found its row
        std::optional<Outcome> outcome{};
    };

    void add(std::span<const std::string> statements);
    void clear();

    /// The first of that text that nobody has run yet; null when there is none.
    Item* find(std::string_view statement);
    /// That one and those behind it that have neither been run nor sent. None when another one before them is
    /// still to be run: nothing overtakes it.
    std::vector<Item*> waitingFrom(const Item& first);

    /// Something was written in between: what has been read ahead is out of date.
    void dropReads();
    /// Whether something was written ahead that nobody has asked for.
    bool hasUnaskedWrites() const;

    /// How many rows the Updates of a table have touched since the beginning; nothing when none was sent.
    std::optional<std::int32_t> updated(const std::string& table) const;
    void noteUpdate(const std::string& table, std::int32_t touched) { mUpdated[table] += touched; }

  private:
    std::vector<Item> mItems;
    std::map<std::string, std::int32_t> mUpdated;
};

} // namespace Korvane::ado::postgres

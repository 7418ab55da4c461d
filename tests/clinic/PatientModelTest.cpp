#include "clinic/PatientModel.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace Clinic {

TEST(PatientModel, FindsEveryWordInNameOrIdentifierWhateverItsCaseAndAccents) {
    PatientModel model;
    model.setPatients({{"P-0001", "García Márquez", "Luisa", {}},
                       {"P-0002", "O'Brien", "Séamus", {}},
                       {"P-0010", "Łukasiewicz", "Zbigniew", {}},
                       {"P-0011", "Иванова", "Ольга", {}},
                       {"P-0012", "Groß", "Märta", {}}});
    const std::vector<std::pair<QString, QStringList>> searches{
        {"", {"P-0001", "P-0002", "P-0010", "P-0011", "P-0012"}},
        {"GARCIA", {"P-0001"}},
        {"garcía, lu", {"P-0001"}},
        {"luisa marquez", {"P-0001"}},
        {"garcia seamus", {}},
        {"o'b", {"P-0002"}},
        {"lukas", {"P-0010"}},
        {"ИВАН", {"P-0011"}},
        {"gross", {"P-0012"}},
        {"p-001", {"P-0010", "P-0011", "P-0012"}},
        {"%", {}}};
    for (const auto& [text, expected] : searches) {
        model.search(text);
        QStringList found;
        for (int row = 0; row < model.rowCount(); ++row)
            found << model.at(row).id;
        EXPECT_EQ(found, expected) << text.toStdString();
    }
}

} // namespace Clinic

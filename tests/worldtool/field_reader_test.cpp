// Reading a record's fields from TOML: the kinds of value the industry tables use.
#include <gtest/gtest.h>

#include "world/dates.h"
#include "world/records.h"
#include "worldtool/field_reader.h"

using namespace trovane;
using namespace trovane::worldtool;

namespace {

struct Reading {
    Diagnostics diag;
    CompileContext ctx{diag};
    SourceFile file{"labels.toml", {}};
    FieldRules rules{.refs = {{"boss", FileNo::fileStaff}, {"department.head", FileNo::fileStaff}}};

    template <PackedRecord R>
    R read(std::string_view text) {
        file.root = toml::parse(text);
        FieldReader reader(ctx, file, rules);
        R rec{};
        reader.bind(file.root, 1, rec);
        return rec;
    }
};

TEST(FieldReader, DatesMoneyFlagsAndNestedRecordsWithReferences) {
    Reading r;
    SourceRecord boss{&r.file, nullptr, 1, {}, nullptr};
    r.ctx.addName(FileNo::fileStaff, "Ann Smith", boss, 4);

    auto label = r.read<LabelRecord>(R"(
name = "Northern Lights"
boss = "Ann Smith"
cashBalance = 2500000.25
department = [ {}, { staffAtLevel = [1, 2], rating = 55, head = "Ann Smith" } ]
)");
    EXPECT_TRUE(r.diag.clean());
    EXPECT_EQ(std::tuple(label.boss, label.cashBalance, label.department[1].head, label.department[1].staffAtLevel[1],
                         label.department[1].rating, label.department[0].rating),
              std::tuple(4, 25000002500, 4, 2, 55, 0));

    auto staff = r.read<StaffRecord>("forename = \"Ann\"\nbirthDate = 1961-02-28\nmale = false\nwage = 900\n");
    EXPECT_TRUE(r.diag.clean());
    EXPECT_EQ(std::tuple(staff.birthDate, staff.male, staff.wage),
              std::tuple(serialFromCivil(1961, 2, 28), kFalse, moneyUnits(900)));
}

TEST(FieldReader, RefusesWhatDoesNotFitAndSaysWhere) {
    Reading r;
    r.read<LabelRecord>("name = \"X\"\n\ndepartment = [ { boss = 1 }, {}, {}, {}, {}, {}, {} ]\nfounded = true\n");
    auto problems = r.diag.sorted();
    ASSERT_EQ(problems.size(), 2u);
    EXPECT_EQ(std::tuple(problems[0].line, problems[0].message),
              std::tuple(3, "`department` has 7 values; the field holds 6"));
    EXPECT_EQ(std::tuple(problems[1].line, problems[1].message), std::tuple(4, "`founded` should be a number"));

    Reading nested;
    nested.read<LabelRecord>("department = [ { boss = 1 } ]\n");
    ASSERT_EQ(nested.diag.sorted().size(), 1u);
    EXPECT_EQ(nested.diag.sorted()[0].message, "unknown field `department.boss`");

    Reading money;
    money.read<StaffRecord>("wage = 900000000000000\n");  // the most an amount may be
    EXPECT_TRUE(money.diag.clean());
    money.read<StaffRecord>("wage = 900000000000001\n");
    ASSERT_EQ(money.diag.sorted().size(), 1u);
    EXPECT_EQ(money.diag.sorted()[0].message, "`wage` is out of range for an amount of money");
}

}  // namespace

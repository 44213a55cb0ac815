// SPDX-License-Identifier: MIT
//
// Compares the expected values in the tests of the ports with the results of
// Apple's code.
#include "apple_library.h"
#include "support/language_rows.h"
#include "support/number_rows.h"
#include "support/plist_rows.h"

namespace ztk::test {
namespace {

class AppleCoreFoundation : public AppleLibrary {};

TEST_F(AppleCoreFoundation, ReadsTextsAsInTheTableForBothPorts) {
  for (const NumberRow &row : kNumberRows) {
    SCOPED_TRACE(row.text);
    EXPECT_EQ(IntegerOfText(row.text), row.expected);
  }
}

TEST_F(AppleCoreFoundation, ReadsEntriesAsInTheTableForBothPorts) {
  for (const EntryRow &row : kEntryRows) {
    if (row.onIntel && !kIsIntel) continue;
    SCOPED_TRACE(row.element);
    const auto value = ValueIn(
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
        "<plist version=\"1.0\"><dict><key>a</key>" +
        std::string(row.element) + "</dict></plist>\n");
    EXPECT_EQ(value.value_or(kUnreadable), row.expected);
  }
}

TEST_F(AppleCoreFoundation, ReadsTheFormsAsInTheTable) {
  for (const FormRow &row : FormRows()) {
    SCOPED_TRACE(row.name);
    const auto value = ValueIn(row.bytes);
    EXPECT_EQ(value.has_value(), row.read);
    if (value) {
      EXPECT_EQ(*value, 5);
    }
  }
}

TEST_F(AppleCoreFoundation, ChoosesTheFoldersAsInTheTable) {
  for (const LanguageRow &row : kLanguageRows) {
    SCOPED_TRACE(row.language);
    EXPECT_EQ(FolderFor(row.language), row.folder);
  }
}

}  // namespace
}  // namespace ztk::test

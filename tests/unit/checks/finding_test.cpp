#include "core/checks/finding.h"

#include <gmock/gmock.h>

namespace vendlingua {
namespace {

Finding Of(Severity severity) {
  Finding finding;
  finding.severity = severity;
  return finding;
}

TEST(FindingTest, SeveritiesGoByTheNamesThatScriptsRelyOn) {
  EXPECT_EQ(NameOf(Severity::kError), "error");
  EXPECT_EQ(NameOf(Severity::kWarning), "warning");
  EXPECT_EQ(NameOf(Severity::kNote), "note");
}

TEST(FindingTest, NotesNeedNoWork) {
  const Finding note = Of(Severity::kNote);
  EXPECT_FALSE(NeedsWork({}));
  EXPECT_FALSE(NeedsWork({note, note}));
  EXPECT_TRUE(NeedsWork({note, Of(Severity::kWarning)}));
  EXPECT_TRUE(NeedsWork({Of(Severity::kError)}));
}

TEST(FindingTest, AreCountedBySeverity) {
  const std::vector<Finding> findings = {Of(Severity::kNote), Of(Severity::kError),
                                         Of(Severity::kNote)};
  EXPECT_EQ(CountOf(findings, Severity::kNote), 2U);
  EXPECT_EQ(CountOf(findings, Severity::kError), 1U);
  EXPECT_EQ(CountOf(findings, Severity::kWarning), 0U);
}

}  // namespace
}  // namespace vendlingua

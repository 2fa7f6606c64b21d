// The centre row is made once on first need; branches are listed by kind.

#include "ShopFixture.h"
#include "data/Session.h"
#include "data/Transaction.h"
#include "data/repositories/CenterBranchesRepository.h"

namespace sandogh {
namespace {

using Repo = CenterBranchesRepository;

class CenterBranchesRepositoryTest : public test::ShopFixture {};

TEST_P(CenterBranchesRepositoryTest, CentreIsMadeOnceAndKindsStayApart) {
    Session s = session();
    ASSERT_TRUE(Repo::ofKind(s, Repo::kCentre).has_value());
    EXPECT_TRUE(Repo::ofKind(s, Repo::kCentre)->isEmpty());
    const int north = Repo::add(s, QStringLiteral("شعبه 'شمال'"), Repo::kBranch);
    ASSERT_GT(north, 0);
    const int centre = Repo::centre(s);
    ASSERT_GT(centre, 0);
    EXPECT_NE(centre, north);
    EXPECT_EQ(Repo::centre(s), centre);  // the second need finds the first row
    const QList<CenterBranch> centres = *Repo::ofKind(s, Repo::kCentre);
    ASSERT_EQ(centres.size(), 1);
    EXPECT_EQ(centres[0].name, QStringLiteral("مرکز"));
    const QList<CenterBranch> branches = *Repo::ofKind(s, Repo::kBranch);
    ASSERT_EQ(branches.size(), 1);
    EXPECT_EQ(branches[0].name, QStringLiteral("شعبه 'شمال'"));  // stored as typed
    EXPECT_EQ(Repo::find(s, north)->name, branches[0].name);
    EXPECT_FALSE(Repo::find(s, north + centre + 10).has_value());
}

}  // namespace

SANDOGH_INSTANTIATE_BACKENDS(CenterBranchesRepositoryTest);

}  // namespace sandogh

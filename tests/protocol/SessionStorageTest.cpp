#include "protocol/AspCpeSessionStorage.h"
#include "support/Text.h"

#include <gtest/gtest.h>

namespace quorvel::test
{

namespace
{

class SessionStorageTest : public testing::Test
{
protected:
    const boost::shared_ptr<AspCpeSessionStorage> storage = AspCpeSessionStorage::getInstance();
};

} // namespace

TEST_F(SessionStorageTest, IsOneForTheProcess)
{
    EXPECT_EQ(AspCpeSessionStorage::getInstance(), storage);
    EXPECT_NE(storage.get(), nullptr);
}

TEST_F(SessionStorageTest, GivesBackWhatWasStored)
{
    storage->setSession(text("192.0.2.1"), text("SID=1"));
    EXPECT_EQ(storage->getSession(text("192.0.2.1")), text("SID=1"));
    EXPECT_TRUE(storage->hasSession(text("192.0.2.1")));
}

TEST_F(SessionStorageTest, GivesAnEmptySessionForAnUnknownAddress)
{
    EXPECT_EQ(storage->getSession(text("192.0.2.2")), QString());
    EXPECT_FALSE(storage->hasSession(text("192.0.2.2")));
}

TEST_F(SessionStorageTest, ReplacesASession)
{
    storage->setSession(text("192.0.2.1"), text("SID=1"));
    storage->setSession(text("http://192.0.2.1"), text("SID=2"));
    EXPECT_EQ(storage->getSession(text("192.0.2.1")), text("SID=2"));
}

TEST_F(SessionStorageTest, RemovesASession)
{
    storage->setSession(text("192.0.2.1"), text("SID=1"));
    storage->removeSession(text("https://192.0.2.1"));
    EXPECT_EQ(storage->getSession(text("192.0.2.1")), QString());
    EXPECT_FALSE(storage->hasSession(text("192.0.2.1")));
    storage->removeSession(text("192.0.2.1"));
}

TEST_F(SessionStorageTest, KeepsTheSessionsOfGatewaysApart)
{
    storage->setSession(text("192.0.2.1"), text("SID=1"));
    storage->setSession(text("192.0.2.1:8080"), text("SID=2"));
    storage->removeSession(text("192.0.2.1"));
    EXPECT_EQ(storage->getSession(text("192.0.2.1:8080")), text("SID=2"));
}

TEST_F(SessionStorageTest, FindsASessionWithAndWithoutAScheme)
{
    storage->setSession(text("192.0.2.1"), text("SID=1"));
    EXPECT_EQ(storage->getSession(text("http://192.0.2.1")), text("SID=1"));
    EXPECT_EQ(storage->getSession(text("https://192.0.2.1")), text("SID=1"));
    storage->setSession(text("http://192.0.2.2"), text("SID=2"));
    EXPECT_EQ(storage->getSession(text("192.0.2.2")), text("SID=2"));
}

TEST_F(SessionStorageTest, RemovesEveryOccurrenceOfASchemeFromTheAddress)
{
    storage->setSession(text("http://http://192.0.2.1/http://"), text("SID=1"));
    EXPECT_EQ(storage->getSession(text("192.0.2.1/")), text("SID=1"));
    storage->setSession(text("hthttp://tps://192.0.2.2"), text("SID=2"));
    EXPECT_EQ(storage->getSession(text("192.0.2.2")), text("SID=2"));
}

TEST_F(SessionStorageTest, ComparesSchemesWithTheirCase)
{
    storage->setSession(text("192.0.2.1"), text("SID=1"));
    EXPECT_EQ(storage->getSession(text("HTTP://192.0.2.1")), QString());
}

TEST_F(SessionStorageTest, AdmitsASessionOnlyUnderAnAddressWithoutAScheme)
{
    storage->setSession(text("http://192.0.2.1"), text("SID=1"));
    EXPECT_FALSE(storage->hasSession(text("http://192.0.2.1")));
    EXPECT_FALSE(storage->hasSession(text("https://192.0.2.1")));
    EXPECT_TRUE(storage->hasSession(text("192.0.2.1")));
}

} // namespace quorvel::test

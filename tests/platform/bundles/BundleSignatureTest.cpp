#include "platform/bundles/BundleSignature.h"

#include <gtest/gtest.h>

namespace {

const QByteArray Seed(32, 'm');

TEST(BundleSignatureTest, IsValidForItsTextAndKey)
{
    const QByteArray signature = BundleSignature::sign("text", Seed);
    EXPECT_TRUE(BundleSignature::isValid("text", signature, BundleSignature::publicKey(Seed)));
}

TEST(BundleSignatureTest, IsThatOfTheStandard)
{
    // The second test of RFC 8032, section 7.1.
    const QByteArray seed =
        QByteArray::fromHex("4ccd089b28ff96da9db6c346ec114e0f5b8a319f35aba624da8cf6ed4fb8a6fb");
    EXPECT_EQ(BundleSignature::publicKey(seed).toHex(),
              "3d4017c3e843895a92b70aa74d1b7ebc9c982ccf2ec4968cc0cd55f12af4660c");
    EXPECT_EQ(BundleSignature::sign("r", seed),
              "92a009a9f0d4cab8720e820b5f642540a2b27b5416503f8fb3762223ebdb69da"
              "085ac1e43e15996e458f3613d0f11d8c387b2eaeb4302aeeb00d291612bb0c00\n");
}

TEST(BundleSignatureTest, IsNotValidForAnotherTextOrKey)
{
    const QByteArray signature = BundleSignature::sign("text", Seed);
    const QByteArray key = BundleSignature::publicKey(Seed);
    EXPECT_FALSE(BundleSignature::isValid("texT", signature, key));
    EXPECT_FALSE(BundleSignature::isValid("", signature, key));
    EXPECT_FALSE(BundleSignature::isValid("text", signature,
                                          BundleSignature::publicKey(QByteArray(32, 's'))));
    EXPECT_FALSE(BundleSignature::isValid("text", signature, key.first(31)));
    EXPECT_FALSE(BundleSignature::isValid("text", signature, {}));
}

TEST(BundleSignatureTest, EverySpoiledSignatureIsInvalid)
{
    const QByteArray signature = BundleSignature::sign("text", Seed);
    const QByteArray key = BundleSignature::publicKey(Seed);
    for (qsizetype i = 0; i < signature.size() - 1; ++i) {
        QByteArray spoiled = signature;
        spoiled[i] = spoiled[i] == '0' ? '1' : '0';
        EXPECT_FALSE(BundleSignature::isValid("text", spoiled, key)) << i;
    }
    for (const QByteArray &spoiled : {QByteArray(), signature.chopped(1), signature + '\n',
                                      signature.toUpper(), ' ' + signature})
        EXPECT_FALSE(BundleSignature::isValid("text", spoiled, key));
}

} // namespace

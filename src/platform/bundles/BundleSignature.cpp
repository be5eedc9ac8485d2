#include "platform/bundles/BundleSignature.h"

#include <array>
#include <sodium.h>
#include <stdexcept>

namespace {

static_assert(BundleSignature::SeedSize == crypto_sign_SEEDBYTES);

const unsigned char *bytesOf(const QByteArray &bytes)
{
    return reinterpret_cast<const unsigned char *>(bytes.constData());
}

/// The keys of a secret; the secret one is erased from memory at the end.
class Keys
{
public:
    explicit Keys(const QByteArray &seed)
    {
        if (sodium_init() < 0 || seed.size() != BundleSignature::SeedSize)
            throw std::runtime_error("no usable secret key");
        crypto_sign_seed_keypair(m_public.data(), m_secret.data(), bytesOf(seed));
    }
    ~Keys() { sodium_memzero(m_secret.data(), m_secret.size()); }
    Keys(const Keys &) = delete;
    Keys &operator=(const Keys &) = delete;

    const unsigned char *secretKey() const { return m_secret.data(); }
    QByteArray publicKey() const
    {
        return {reinterpret_cast<const char *>(m_public.data()), qsizetype(m_public.size())};
    }

private:
    std::array<unsigned char, crypto_sign_PUBLICKEYBYTES> m_public{};
    std::array<unsigned char, crypto_sign_SECRETKEYBYTES> m_secret{};
};

} // namespace

QByteArray BundleSignature::publicKey(const QByteArray &seed)
{
    return Keys(seed).publicKey();
}

QByteArray BundleSignature::sign(const QByteArray &text, const QByteArray &seed)
{
    const Keys keys(seed);
    std::array<unsigned char, crypto_sign_BYTES> signature{};
    crypto_sign_detached(signature.data(), nullptr, bytesOf(text),
                         static_cast<unsigned long long>(text.size()), keys.secretKey());
    return QByteArray(reinterpret_cast<const char *>(signature.data()), qsizetype(signature.size()))
               .toHex() +
           '\n';
}

bool BundleSignature::isValid(const QByteArray &text, const QByteArray &signature,
                              const QByteArray &publicKey)
{
    const QByteArray bytes = QByteArray::fromHex(signature);
    const bool isWellFormed = bytes.size() == crypto_sign_BYTES &&
                              bytes.toHex() + '\n' == signature &&
                              publicKey.size() == crypto_sign_PUBLICKEYBYTES;
    return isWellFormed && sodium_init() >= 0 &&
           crypto_sign_verify_detached(bytesOf(bytes), bytesOf(text),
                                       static_cast<unsigned long long>(text.size()),
                                       bytesOf(publicKey)) == 0;
}

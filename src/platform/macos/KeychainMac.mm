#include "platform/macos/KeychainMac.h"

#include <QStringDecoder>

#import <Foundation/Foundation.h>
#import <Security/Security.h>

using namespace std::chrono_literals;

namespace {

NSMutableDictionary *baseQuery(const QString &account)
{
    return [@{
        (__bridge id)kSecClass : (__bridge id)kSecClassGenericPassword,
        (__bridge id)kSecAttrService : Keychain::serviceName().toNSString(),
        (__bridge id)kSecAttrAccount : account.toNSString(),
    } mutableCopy];
}

/// The system's description of the status; empty if it has none.
QString textOf(OSStatus status)
{
    NSString *text = CFBridgingRelease(SecCopyErrorMessageString(status, nullptr));
    return QString::fromNSString(text);
}

Keychain::Lookup lookupOf(NSData *data)
{
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString token = decoder(QByteArray::fromNSData(data));
    if (!data || decoder.hasError())
        return Keychain::Missing();
    return Keychain::Found{token};
}

Keychain::Lookup lookUp(const QString &account)
{
    NSMutableDictionary *query = baseQuery(account);
    query[(__bridge id)kSecReturnData] = @YES;
    query[(__bridge id)kSecMatchLimit] = (__bridge id)kSecMatchLimitOne;
    CFTypeRef result = nullptr;
    const OSStatus status = SecItemCopyMatching((__bridge CFDictionaryRef)query, &result);
    if (status == errSecItemNotFound)
        return Keychain::Missing();
    if (status != errSecSuccess)
        return Keychain::Failed{status, textOf(status)};
    const id object = CFBridgingRelease(result);
    return lookupOf([object isKindOfClass:NSData.class] ? object : nil);
}

OSStatus deleteItem(const QString &account)
{
    return SecItemDelete((__bridge CFDictionaryRef)baseQuery(account));
}

void addItem(const QString &token, const QString &account)
{
    NSMutableDictionary *item = baseQuery(account);
    item[(__bridge id)kSecValueData] = token.toUtf8().toNSData();
    item[(__bridge id)kSecAttrLabel] = Keychain::label(account).toNSString();
    const OSStatus status = SecItemAdd((__bridge CFDictionaryRef)item, nullptr);
    if (status != errSecSuccess)
        throw Keychain::Failure(status, textOf(status));
}

} // namespace

QCoro::Task<Keychain::Lookup> KeychainMac::read(QString account)
{
    co_await m_clock.sleep(0ms);
    co_return lookUp(account);
}

QCoro::Task<> KeychainMac::save(QString token, QString account)
{
    co_await m_clock.sleep(0ms);
    deleteItem(account);
    addItem(token, account);
}

QCoro::Task<> KeychainMac::remove(QString account)
{
    co_await m_clock.sleep(0ms);
    const OSStatus status = deleteItem(account);
    if (status != errSecSuccess && status != errSecItemNotFound)
        throw Failure(status, textOf(status));
}

std::unique_ptr<Keychain> Keychain::ofThisSystem(Clock &clock)
{
    return std::make_unique<KeychainMac>(clock);
}

#include "platform/StreamCipher.h"

#include <windows.h>
#include <wincrypt.h>

#include "platform/FilePassword.h"

namespace tavrin::platform {

namespace {

constexpr wchar_t kProvider[] = L"Microsoft Enhanced Cryptographic Provider v1.0";
constexpr DWORD kKeyLength128 = 0x00800000;
constexpr int kDerivationFailed = -1;

void Require(BOOL succeeded) {
  if (!succeeded) throw kDerivationFailed;
}

HCRYPTPROV AcquireProvider() {
  HCRYPTPROV provider = 0;
  if (!CryptAcquireContextW(&provider, nullptr, kProvider, PROV_RSA_FULL, 0)) {
    // The user has no default key container yet.
    Require(CryptAcquireContextW(&provider, nullptr, kProvider, PROV_RSA_FULL, CRYPT_NEWKEYSET));
  }
  return provider;
}

/// Derives the RC4 key; false leaves it as it was. Provider, hash and key stay open on purpose: a
/// process derives a handful of keys, and they go with it.
bool DeriveFileKey(HCRYPTKEY* key) {
  try {
    const HCRYPTPROV provider = AcquireProvider();
    HCRYPTHASH hash = 0;
    Require(CryptCreateHash(provider, CALG_SHA1, 0, 0, &hash));
    Require(CryptHashData(hash, kFilePassword, sizeof kFilePassword, 0));
    Require(CryptDeriveKey(provider, CALG_RC4, hash, kKeyLength128, key));
    return true;
  } catch (int) {
    return false;
  }
}

}  // namespace

bool EncryptInPlace(unsigned char* block, std::uint32_t n) {
  HCRYPTKEY key = 0;
  DeriveFileKey(&key);  // CryptEncrypt refuses the key 0
  DWORD length = n;
  return CryptEncrypt(key, 0, TRUE, 0, block, &length, n) == TRUE;
}

bool DecryptInPlace(unsigned char* block, std::uint32_t n) {
  HCRYPTKEY key = 0;
  DeriveFileKey(&key);  // CryptDecrypt refuses the key 0
  DWORD length = n;
  return CryptDecrypt(key, 0, TRUE, 0, block, &length) == TRUE;
}

}  // namespace tavrin::platform

#include "crypto/base64.h"
#include "crypto/credential_cipher.h"
#include "crypto/md5_text.h"
#include "tests/support/filled_array.h"
#include "tests/support/printing.h"

namespace kesto {
namespace {

using namespace test;

std::span<const std::uint8_t> bytesOf(const QByteArray& array) {
  return {reinterpret_cast<const std::uint8_t*>(array.constData()), static_cast<std::size_t>(array.size())};
}

// Each plaintext, completed with zero bytes, through
// openssl enc -aes-128-ecb -nopad -K 5e2b90c4710da633e8194fb207cd6a58
constexpr std::array<std::pair<const char*, const char*>, 7> cipherCases{{
    {"1", "742c2a7c1de1db6fb2d37ab6b69e4858"},
    {"12345", "14b7eeee335a1c6f80913c213fc87ac6"},
    {"12345678", "b70a9dc22c0094ffbca920d972ec3098"},
    {"\xE9\xFF", "04828c22349e478882a9ef63a1018170"},
    {"0123456789abcdef", "c604cf6e588747093b725502e4c1a943"},
    {"0123456789abcdef0", "c604cf6e588747093b725502e4c1a943f9a551cc984d50cd08c4f1092031dae4"},
    {"0123456789abcdef0123456789ABCDEF", "c604cf6e588747093b725502e4c1a94317ee51593c583158cfaa7b43f3efdd65"},
}};

TEST(CredentialCipher, KnownAnswersBothWays) {
  for (const auto& [plaintext, cipherText] : cipherCases) {
    FilledArray<std::uint8_t, 48> output;
    my_aes_encrypt(plaintext, output);
    const QByteArray expected = QByteArray::fromHex(cipherText);
    EXPECT_EQ(QByteArray(output.text(), 48), expected.leftJustified(48, '\0')) << plaintext;
    std::array<std::uint8_t, 49> deciphered{};
    my_aes_decrypt(bytesOf(expected), deciphered);
    EXPECT_STREQ(reinterpret_cast<const char*>(deciphered.data()), plaintext);
  }
}

TEST(CredentialCipher, WholeBlocksOnlyAndNeverPastTheOutput) {
  FilledArray<std::uint8_t, 20> small;
  my_aes_decrypt(bytesOf(QByteArray::fromHex(cipherCases[6].second)), small);
  EXPECT_EQ(QByteArray(small.text(), 17), "0123456789abcdef\xAA") << "a block that does not fit was begun";
  my_aes_encrypt(nullptr, small);
  my_aes_decrypt({}, small);
  EXPECT_EQ(small[0], '0') << "written to without an input";
  my_aes_encrypt("0123456789abcdef0", small);
  EXPECT_EQ(QByteArray(small.text(), 20).toHex(), QByteArray(cipherCases[4].second) + "00000000");
  my_aes_encrypt("", small);
  EXPECT_EQ(QByteArray(small.text(), 20), QByteArray(20, '\0'));
  my_aes_encrypt("1", {});
  my_aes_decrypt(small, {});
}

// The vectors of RFC 4648, and the whole alphabet.
TEST(Base64, KnownAnswersBothWays) {
  const QByteArray alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  const std::pair<QByteArray, QByteArray> cases[] = {{"", ""},
                                                     {"f", "Zg=="},
                                                     {"fo", "Zm8="},
                                                     {"foo", "Zm9v"},
                                                     {"foob", "Zm9vYg=="},
                                                     {"fooba", "Zm9vYmE="},
                                                     {"foobar", "Zm9vYmFy"},
                                                     {QByteArray::fromBase64(alphabet), alphabet}};
  for (const auto& [plain, encoded] : cases) {
    std::array<char, 65> text{};
    EXPECT_EQ(Base64encode(text, bytesOf(plain)), static_cast<std::size_t>(encoded.size()) + 1);
    EXPECT_EQ(QByteArray(text.data()), encoded);
    std::array<char, 49> bytes{};
    const std::span output(reinterpret_cast<std::uint8_t*>(bytes.data()), bytes.size());
    EXPECT_EQ(Base64decode(output, encoded.constData()), static_cast<std::size_t>(plain.size()));
    EXPECT_EQ(QByteArray(bytes.data(), plain.size()), plain);
  }
}

TEST(Base64, DecodingEndsAtTheFirstCharacterOutsideTheAlphabet) {
  for (const auto& [text, plain] :
       {Pair{"Zm8", "fo"}, Pair{"Zg", "f"}, Pair{"Z", ""}, Pair{"Zm9vZ", "foo"}, Pair{"Zm8=Zm9v", "fo"},
        Pair{"Zm9v\nYmFy", "foo"}, Pair{"Zm9v-YmFy", "foo"}, Pair{"\u00C3Zm9v", ""}}) {
    FilledArray<std::uint8_t, 8> bytes;
    EXPECT_EQ(Base64decode(bytes, text.toUtf8()), static_cast<std::size_t>(plain.size())) << text;
    EXPECT_EQ(QString::fromUtf8(bytes.text()), plain);
  }
}

TEST(Base64, OutputThatIsTooSmallIsNeverOverrun) {
  FilledArray<char, 8> text;
  EXPECT_EQ(Base64encode(text, bytesOf("foobar")), 5U);
  EXPECT_STREQ(text.text(), "Zm9v");
  FilledArray<std::uint8_t, 4> bytes;
  EXPECT_EQ(Base64decode(bytes, "Zm9vYmFy"), 3U);
  EXPECT_STREQ(bytes.text(), "foo");
  EXPECT_EQ(Base64encode({}, bytesOf("foo")) + Base64decode({}, "Zm9v"), 0U);
}

TEST(Md5Text, SuiteOfRfc1321) {
  const QString digits = u"1234567890"_s.repeated(8);
  for (const auto& [input, digest] : Cases{{"", "d41d8cd98f00b204e9800998ecf8427e"},
                                           {"abc", "900150983cd24fb0d6963f7d28e17f72"},
                                           {digits, "57edf4a22be3c955ac49da2e2107b67a"}}) {
    FilledArray<char, digestTextSize> text;
    calcMD5(text, input.toLatin1());
    EXPECT_EQ(QString::fromLatin1(text.text()), digest);
  }
  FilledArray<char, digestTextSize - 1> small;
  calcMD5(small, "abc");
  EXPECT_EQ(small[0], static_cast<char>(0xAA)) << "written to without room";
}

}  // namespace
}  // namespace kesto

// tessarine-site: the site tools without a window.
#include <cstdio>
#include <cstring>

int main(int argc, char** argv) {
  if (argc < 2 || std::strcmp(argv[1], "--help") == 0) {
    std::fputs("usage: tessarine-site COMMAND [ARGS]\n", argc < 2 ? stderr : stdout);
    return argc < 2 ? 2 : 0;
  }
  std::fprintf(stderr, "tessarine-site: unknown command '%s'\n", argv[1]);
  return 2;
}

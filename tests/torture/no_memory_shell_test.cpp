#include <gtest/gtest.h>

#include "support/capture.h"
#include "support/child.h"
#include "support/input_file.h"
#include "tavik.h"
#include "torture/heap_boundary.h"

namespace {

// Makes calls with an allocation more at each, until one has gone through.
template <typename Call>
void with_growing_heap(Call call) {
  for (size_t granted = 0; !call(granted); ++granted) ASSERT_LT(granted, 50U);
}

TEST(NoMemory, CapturedOutputIsCutShort) {
  with_growing_heap([](size_t granted) {
    char* out = nullptr;
    int32_t size = 0;
    {
      const test::ExhaustedHeap heap(granted);
      size = asprint_shell(&out, "exec 2>&-; head -c 9000 /dev/zero | tr '\\0' y");
    }
    const std::string text = out == nullptr ? "" : out;
    EXPECT_EQ(size, out == nullptr ? -1 : static_cast<int32_t>(text.size() / 4096 + 1) * 4096);
    free(out);
    return text == std::string(9000, 'y');
  });
}

TEST(NoMemory, CommandsTellOrDropLines) {
  with_growing_heap([](size_t granted) {
    int32_t status = 0;
    const std::string page = test::printed([&] {
      putchar('\n');
      const test::ExhaustedHeap heap(granted);
      status = run_shell(PF_PRE, "exec 2>&-; echo %d", 1);
    });
    const std::string failed = "\n<pre>unable to run script!\n</pre>";
    EXPECT_TRUE(status == 0 || page == "\n" || page == failed) << page;
    return page == "\n<pre>1\n</pre>";
  });
  with_growing_heap([](size_t granted) {
    shell_output list{};
    {
      const test::ExhaustedHeap heap(granted);
      EXPECT_LE(shell_run(&list, "exec 2>&-; echo %d; echo 2", 1), 0);
    }
    const uint32_t count = list.count;
    shell_line(&list, nullptr, 0);
    return count == 2;
  });
}

TEST(NoMemory, AnUploadEndsWithAMessage) {
  const test::InputFile body("--B\r\n");
  const test::ChildAnswer answer = test::in_child([&] {
    dup2(body.fd(), STDIN_FILENO);
    setenv("REQUEST_METHOD", "POST", 1);
    setenv("CONTENT_TYPE", "multipart/form-data; boundary=B", 1);
    setenv("CONTENT_LENGTH", "5", 1);
    const cgi_handler exhaust = [](void*, cgi_attr*, int32_t, int32_t) {
      static const test::ExhaustedHeap heap;
      return 0;
    };
    return getcgivars(nullptr, exhaust, nullptr);
  });
  EXPECT_EQ(answer.output,
            "Content-Type: text/plain\r\n\r\ncgidecode(): Couldn't malloc for multipart.\r\n");
  EXPECT_EQ(answer.status, 1);
}

}  // namespace

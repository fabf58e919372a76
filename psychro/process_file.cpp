#include "psychro/process_file.h"

#include "frame/result_file.h"

namespace vrn2 {

std::wstring processResultTitle() { return L"\n          空气处理过程与回风系统计算结果\n"; }

bool appendProcessResult(const std::wstring& block) {
    return appendResultBlock(kProcessResultFile, processResultTitle(), block,
                             Message{Channel::Alert, L"不能创建存放结果的文件."});
}

}  // namespace vrn2

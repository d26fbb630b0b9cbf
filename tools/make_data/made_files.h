// Puts newly made files into a data folder that may hold the ones of an earlier run and a person's own.
//
// `lectern-made.txt` in the data folder says what the tool has made: a line for each file, with the digest of
// its bytes and its name. A file that still has its digest is the tool's, and is replaced. One that has
// another was changed by the person, and stays. What a run without such a list has left is replaced if it
// cannot be the person's, and its last version is kept under `backup`; what may be theirs stays.
#pragma once

#include <string>
#include <vector>

namespace lectern::make_data {

// A new folder in the data folder, in which files are made. It is removed with its owner.
class MakingFolder {
 public:
  explicit MakingFolder(const std::string& data_folder);
  MakingFolder(const MakingFolder&) = delete;
  MakingFolder& operator=(const MakingFolder&) = delete;
  ~MakingFolder();

  const std::string& Path() const { return path_; }

 private:
  std::string path_;
};

// Whether a file of that name is in the data folder and stays as it is.
bool Stays(const std::string& data_folder, const std::string& name);

// Moves all files that were made into the data folder. Returns the names of those that stay because the
// person changed them. Where the catalogue of pictures stays, it gets the records of pictures that are new.
std::vector<std::string> BringIn(const std::string& making, const std::string& data_folder);

// The same for what the person asked for: it replaces everything, and what was there is kept under `backup`.
void BringInOwn(const std::string& making, const std::string& data_folder);

}  // namespace lectern::make_data

-- Starts the language server of QUILL inputs in Neovim 0.7 and newer:
--
--   require('quill_inp').setup()
--   require('quill_inp').setup({ cmd = { '/opt/kelp/bin/quill-inp', 'lsp' } })

local M = {}

local function configuration(options)
  local file = vim.api.nvim_get_runtime_file('lsp/quill_inp.lua', false)[1]
  return vim.tbl_extend('force', dofile(file), options or {})
end

-- The nearest folder above the file that has one of the markers, or the folder of the file.
local function root_of(buffer, markers)
  local start = vim.fn.fnamemodify(vim.api.nvim_buf_get_name(buffer), ':p:h')
  for _, marker in ipairs(markers) do
    local folder, above = start, nil
    while folder ~= above do
      if vim.loop.fs_stat(folder .. '/' .. marker) then return folder end
      folder, above = vim.fn.fnamemodify(folder, ':h'), folder
    end
  end
  return start
end

-- Before Neovim 0.8, nobody else keeps the one server of each folder.
local servers = {}

local function attach(buffer, config)
  local root = root_of(buffer, config.root_markers)
  local started = vim.tbl_extend('force', config, { name = 'quill_inp', root_dir = root })
  if vim.lsp.start then
    vim.lsp.start(started, { bufnr = buffer })
    return
  end
  if not servers[root] then
    started.on_exit = function() servers[root] = nil end
    servers[root] = vim.lsp.start_client(started)
  end
  vim.lsp.buf_attach_client(buffer, servers[root])
end

-- Uses the server for every buffer of the file type "qin". The options replace those of lsp/quill_inp.lua.
function M.setup(options)
  local config = configuration(options)
  vim.api.nvim_create_autocmd('FileType', {
    group = vim.api.nvim_create_augroup('quill_inp', {}),
    pattern = config.filetypes,
    callback = function(event) attach(event.buf, config) end,
  })
end

return M

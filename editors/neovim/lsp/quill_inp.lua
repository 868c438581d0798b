-- The language server of QUILL inputs. Neovim 0.11 and newer: vim.lsp.enable('quill_inp'). Older ones:
-- require('quill_inp').setup().
return {
  cmd = { 'quill-inp', 'lsp' },
  filetypes = { 'qin' },
  root_markers = { '.quill-inp.toml', '.git' },
}
